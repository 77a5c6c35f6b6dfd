// Any bytes may be a WAD: opening, walking and reading it ends, and a lump added to it stays.
#include <algorithm>

#include "require.h"
#include "support/temp_folder.h"
#include "text/ascii.h"
#include "wad/little_endian.h"
#include "wad/maps.h"

namespace {

constexpr std::int32_t MaxBytes = 1 << 20;

std::vector<std::string> LumpNames(const clsWad& wad) {
    std::vector<std::string> names(static_cast<std::size_t>(wad.Directory().Count()));
    std::ranges::generate(names, [&, lump = 0]() mutable { return wad.LumpName(lump++); });
    return names;
}

void Walk(const clsWad& wad) {
    Require(!LowestMap(wad) || !MapNames(wad).empty(), "the lowest map is one of the maps");
    for (std::int32_t lump = 0; lump < wad.Directory().StoredCount() + 2; ++lump) {
        const std::string name = UpperCase(wad.LumpName(lump));
        const std::int32_t found = wad.NumForName(name);
        Require(found == -1 || wad.LumpName(found) == name, "a found name is equal");
        Require(found <= lump || wad.LumpName(lump) != name, "the first one is found");
        if (wad.LumpSize(lump) <= MaxBytes) {
            wad.ReadLump(lump);
        }
    }
}

void Extend(clsWad& wad) {
    std::vector<std::string> names = LumpNames(wad);
    if (wad.AddLump("added", "0123456789")) {
        Require(!!wad.WriteDirectory(), "a directory is written");
        wad.OpenWad(wad.WadFileName());
        names.emplace_back("ADDED");
        Require(LumpNames(wad) == names, "names stay, and the new one is the last");
        const auto added = static_cast<std::int32_t>(names.size() - 1);
        Require(wad.ReadLumpString(added) == "0123456789", "the added lump is read again");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    static const TempFolder folder;
    clsWad wad;
    wad.OpenWad(folder.Write("input.wad", {bytes, size}));
    Walk(wad);
    if (size >= 12 && DecodeInt32(bytes + 8) < MaxBytes && wad.Directory().Count() < 1000) {
        Extend(wad);
    }
    return 0;
}
