// The 32-bit whole numbers of a WAD file, lowest byte first.
#pragma once

#include <cstdint>
#include <string>

/// Decodes the number in the four bytes at `bytes`.
inline std::int32_t DecodeInt32(const char* bytes) {
    std::uint32_t number = 0;
    for (int place = 3; place >= 0; --place) {
        number = number << 8 | static_cast<unsigned char>(bytes[place]);
    }
    return static_cast<std::int32_t>(number);
}

/// Appends the number's four bytes.
inline void AppendInt32(std::string& bytes, std::int32_t number) {
    const auto raw = static_cast<std::uint32_t>(number);
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(raw >> shift & 0xFF));
    }
}
