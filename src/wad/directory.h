// The directory of a WAD file: an entry of 16 bytes per lump, kept as read and decoded on access.
//
//     offset 0   position of the lump in the file   32-bit signed, little-endian
//     offset 4   length of the lump                 32-bit signed, little-endian
//     offset 8   name                               8 characters, padded with NULs or spaces
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/files.h"

using LumpNameField = std::array<char, 8>;

struct WadLumpEntry {
    std::int32_t filePos = 0;
    std::int32_t size = 0;
    LumpNameField name{};
};

/// Entries past the end of the file are counted but not stored: like an index out of range, they
/// read as an entry without name and bytes at position 0.
class WadDirectory {
  public:
    static constexpr std::size_t EntryBytes = 16;

    /// Replaces the directory by `count` entries (not negative) at `offset`, in one read. Returns
    /// false, and changes nothing, if the file cannot be read or there is not enough memory.
    [[nodiscard]] bool Read(const platform::File& file, std::int64_t offset, std::int32_t count);
    /// Appends an entry. Only the first 8 characters of the name are kept.
    void Add(std::int32_t filePos, std::int32_t size, std::string_view name);

    /// Number of entries, and of those that are stored. The stored ones come first.
    std::int32_t Count() const { return count_; }
    std::int32_t StoredCount() const;
    WadLumpEntry Entry(std::int32_t index) const;
    /// The entry's name with each NUL replaced by a space, then without the spaces at both ends.
    std::string Name(std::int32_t index) const;
    /// Index of the first entry of that name at or after `start` (not negative), or -1.
    std::int32_t Find(std::string_view name, std::int32_t start = 0) const;

    /// The bytes of the directory in a file. Names lose the spaces at both ends and are padded with
    /// NULs.
    std::string Encode() const;

  private:
    LumpNameField NameField(std::int32_t index) const;

    std::string bytes_;  // of the stored entries
    std::int32_t count_ = 0;
};
