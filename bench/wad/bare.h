// Lower bound for listing the maps of a WAD: plain C that trusts the file.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Opens the file, reads header and directory, finds the maps and copies their names. Returns their
/// number, -1 if the file cannot be read.
int BareMapCount(const char* path);

#ifdef __cplusplus
}
#endif
