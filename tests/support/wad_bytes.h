// WAD files made by hand, byte by byte.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "wad/little_endian.h"

inline std::string Header(std::string_view tag, std::int32_t count, std::int32_t offset) {
    std::string bytes(tag);
    AppendInt32(bytes, count);
    AppendInt32(bytes, offset);
    return bytes;
}

inline std::string Entry(std::int32_t filePos, std::int32_t size, std::string name) {
    std::string bytes;
    AppendInt32(bytes, filePos);
    AppendInt32(bytes, size);
    name.resize(8, '\0');
    return bytes + name;
}

/// A WAD of empty lumps with these names.
inline std::string WadOf(const std::vector<std::string>& names, std::string_view tag = "IWAD") {
    std::string bytes = Header(tag, static_cast<std::int32_t>(names.size()), 12);
    for (const std::string& name : names) {
        bytes += Entry(12, 0, name);
    }
    return bytes;
}
