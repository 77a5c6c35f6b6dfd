// Opening a WAD and listing its maps, beside plain C that does the least it can.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bare.h"
#include "support/comparison.h"
#include "support/temp_folder.h"
#include "wad/maps.h"

namespace {

const char* const realWad = "/usr/share/games/doom/freedoom2.wad";

/// A WAD of empty lumps: maps of eleven lumps each, with a twelfth between them.
void WriteWad(const std::string& path, int lumps) {
    clsWad wad;
    std::string type = "IWAD";
    wad.CreateWad(path, type);
    for (int lump = 0; lump < lumps; ++lump) {
        const int place = lump % 12;
        const std::string number = std::to_string(lump / 12);
        wad.AddLump(place == 0 ? "M" + number : place == 1 ? "THINGS" : "LUMP" + number, "");
    }
    wad.WriteDirectory();
}

void AddFile(Comparison& table, const std::string& name, const std::string& path,
             const std::string& native) {
    clsWad wad;
    wad.OpenWad(path);
    const auto lumps = static_cast<std::size_t>(wad.Directory().Count());
    if (MapNames(wad).size() != static_cast<std::size_t>(BareMapCount(native.c_str()))) {
        std::fprintf(stderr, "%s: not the same maps\n", native.c_str());
        std::abort();
    }
    table.Add(name, "ours", lumps, [path] {
        clsWad opened;
        opened.OpenWad(path);
        benchmark::DoNotOptimize(MapNames(opened).data());
    });
    table.Add(name, "bare C", lumps,
              [native] { benchmark::DoNotOptimize(BareMapCount(native.c_str())); });
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const TempFolder folder;
    Comparison table("Opening a WAD and listing its maps", "lump");
    if (std::filesystem::exists(realWad)) {
        AddFile(table, "freedoom2.wad", realWad, realWad);
    }
    for (const int lumps : {3'000, 100'000, 1'000'000}) {
        const std::string name = std::to_string(lumps) + ".wad";
        WriteWad(folder.Path(name), lumps);
        AddFile(table, std::to_string(lumps) + " lumps", folder.Path(name),
                folder.Native(name).string());
    }
    table.Run(argumentCount, arguments);
}
