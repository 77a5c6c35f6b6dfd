// What the fuzz targets share.
#pragma once

#include <cstdlib>
#include <stdexcept>

#include "support/temp_folder.h"

/// Stops the target unless `holds`.
inline void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::logic_error(what);
    }
}

/// A temporary folder in memory: on a disk, most of the time would go into its files.
inline const TempFolder& MemoryFolder() {
    static const int inMemory = setenv("TMPDIR", "/dev/shm", 1);
    static const TempFolder folder;
    Require(inMemory == 0, "the folder is in memory");
    return folder;
}
