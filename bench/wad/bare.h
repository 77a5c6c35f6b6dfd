// The least that listing a WAD's maps can take: plain C that trusts the file.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Opens the file, reads header and directory, compares names and copies those of the maps; gives
/// their number, -1 when the file cannot be read.
int BareMapCount(const char* path);

#ifdef __cplusplus
}
#endif
