// The maps of a WAD. A map is a lump whose next lump is named "THINGS", compared exactly; its own
// name may be any.
#pragma once

#include <string>
#include <vector>

#include "wad/wad.h"

/// The names of the maps in the directory's order, a name that occurs twice twice. The ten lumps
/// behind a map are its own: a map among them is passed over.
std::vector<std::string> MapNames(const clsWad& wad);

/// The map whose name is lowest by the codes of its characters, empty when there is no map. Only
/// behind a map that was the lowest so far are ten lumps passed over.
std::string LowestMap(const clsWad& wad);
