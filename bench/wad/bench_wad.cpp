// Opens a WAD and lists its maps, beside plain C that does the least possible.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bare.h"
#include "support/comparison.h"
#include "support/temp_folder.h"
#include "support/wad_bytes.h"
#include "wad/maps.h"

namespace {

constexpr const char* RealWad = "/usr/share/games/doom/freedoom2.wad";

/// A WAD of empty lumps: maps of eleven lumps each, with a twelfth between them.
std::string SyntheticWad(int lumps) {
    std::vector<std::string> names;
    for (int lump = 0; lump < lumps; ++lump) {
        const int place = lump % 12;
        const std::string number = std::to_string(lump / 12);
        names.push_back(place == 0 ? "M" + number : place == 1 ? "THINGS" : "LUMP" + number);
    }
    return WadOf(names);
}

void MeasureFile(const Comparison& table, const std::string& name, const std::string& path,
                 const std::string& native) {
    clsWad wad;
    wad.OpenWad(path);
    const auto lumps = static_cast<std::size_t>(wad.Directory().Count());
    if (MapNames(wad).size() != static_cast<std::size_t>(BareMapCount(native.c_str()))) {
        std::fprintf(stderr, "%s: different maps\n", native.c_str());
        std::abort();
    }
    table.Measure(name, lumps,
                  {[path] {
                       clsWad opened;
                       opened.OpenWad(path);
                       benchmark::DoNotOptimize(MapNames(opened).data());
                   },
                   [native] { benchmark::DoNotOptimize(BareMapCount(native.c_str())); }});
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const TempFolder folder;
    const Comparison table(argumentCount, arguments, "Opening a WAD and listing its maps", "lump",
                           {"ours", "bare C"});
    if (std::filesystem::exists(RealWad)) {
        MeasureFile(table, "freedoom2.wad", RealWad, RealWad);
    }
    for (const int lumps : {3'000, 100'000, 1'000'000}) {
        const std::string name = std::to_string(lumps) + ".wad";
        MeasureFile(table, std::to_string(lumps) + " lumps",
                    folder.Write(name, SyntheticWad(lumps)), folder.Native(name).string());
    }
}
