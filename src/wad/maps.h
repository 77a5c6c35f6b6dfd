// The maps of a WAD. A map is a lump of any name that is followed by a lump named exactly "THINGS".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "wad/wad.h"

/// The names of the maps in directory order, duplicates included. After each map its ten data lumps
/// are skipped, so a map among them is not listed.
std::vector<std::string> MapNames(const clsWad& wad);

/// The map whose name is the lowest in byte order; a map without a name is the lowest of all. Names
/// must be below eight bytes of 0xFF. Ten lumps are skipped only after a map that is the lowest so
/// far.
std::optional<std::string> LowestMap(const clsWad& wad);
