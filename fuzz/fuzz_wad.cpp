// Any bytes may be a WAD: opening, searching and reading it ends, and a lump added to it stays.
#include "require.h"
#include "text/ascii.h"
#include "wad/little_endian.h"
#include "wad/maps.h"

namespace {

constexpr std::int32_t MaxBytes = 1 << 20;
constexpr std::int32_t MaxLumps = 1000;

std::vector<std::string> LumpNames(const clsWad& wad) {
    std::vector<std::string> names;
    for (std::int32_t lump = 0; lump < wad.Directory().Count(); ++lump) {
        names.push_back(wad.LumpName(lump));
    }
    return names;
}

void Search(const clsWad& wad) {
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
        Require(wad.WriteDirectory().ok, "a directory is written");
        wad.OpenWad(wad.WadFileName());
        names.emplace_back("ADDED");
        Require(LumpNames(wad) == names, "the names stay and the new one is the last");
        const auto added = static_cast<std::int32_t>(names.size() - 1);
        Require(wad.ReadLumpString(added) == "0123456789", "the added lump is read back");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size) {
    const std::string path = MemoryFolder().Write("input.wad", {bytes, size});
    clsWad wad;
    wad.OpenWad(path);
    Search(wad);
    // The directory may begin far after the end: writing there would make a huge file.
    if (size >= 12 && DecodeInt32(bytes + 8) < MaxBytes && wad.Directory().Count() < MaxLumps) {
        Extend(wad);
    }
    std::string type = "pwad";
    Require(wad.CreateWad(path, type).ok, "a new WAD over those bytes");
    Extend(wad);
    return 0;
}
