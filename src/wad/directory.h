// The directory of a WAD file: an entry of 16 bytes for each lump, kept as it comes from the file
// and read in place. All numbers are 32-bit signed and little-endian.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

constexpr std::size_t lumpNameLength = 8;
using LumpNameField = std::array<char, lumpNameLength>;

/// Where a lump lies in the file, in bytes, and the eight characters of its name.
struct WadLumpEntry {
    std::int32_t filePos = 0;
    std::int32_t size = 0;
    LumpNameField name{};
};

/// The name in a field of eight characters: each NUL counts as a blank, and the blanks at both ends
/// are no part of it.
std::string StripLumpName(const char* field);
/// Appends that name to the others.
void AppendLumpName(const char* field, std::vector<std::string>& names);

/// A name to be looked for in such fields. It has no blank at either end, and lasts as long as the
/// text that it was made from.
class WantedName {
  public:
    explicit WantedName(std::string_view name);
    /// Whether the field holds the name.
    bool IsIn(const char* field) const;

  private:
    std::string_view name_;
    char first_;
    bool isPossible_;
    LumpNameField usual_{};
};

/// Entries that a file's header promises and its end cuts off are counted but take no memory: they
/// are nameless, empty and at position 0.
class WadDirectory {
  public:
    static constexpr std::size_t entryBytes = 16;

    /// Reads `count` entries (not negative) that begin at `offset`, in one read. Gives false when
    /// there is no memory for them; the directory is then empty.
    bool Read(const platform::File& file, std::int64_t offset, std::int32_t count);
    void Add(const WadLumpEntry& entry);
    void Clear() { *this = {}; }

    std::int32_t Count() const { return firstAdded_ + added_; }
    /// No entry from this index on has a name or bytes.
    std::int32_t StoredCount() const { return added_ > 0 ? Count() : read_; }
    /// An entry; an index that there is not gives one that is nameless and empty.
    WadLumpEntry Entry(std::int32_t index) const;
    /// The eight characters of the entry's name.
    const char* NameField(std::int32_t index) const { return Bytes(index) + 8; }
    /// Index of the first entry from `start` on (not negative) with that name, or -1.
    std::int32_t Find(const WantedName& name, std::int32_t start = 0) const;

    /// The bytes that stand for an entry in a file: the name without blanks at both ends, filled up
    /// with NULs.
    static std::string Encode(const WadLumpEntry& entry);

  private:
    static constexpr std::array<char, entryBytes> missing{};

    const char* Bytes(std::int32_t index) const {
        if (index >= 0 && index < read_) {
            return readBytes_.get() + static_cast<std::size_t>(index) * entryBytes;
        }
        if (index >= firstAdded_ && index < Count()) {
            return addedBytes_.data() + static_cast<std::size_t>(index - firstAdded_) * entryBytes;
        }
        return missing.data();
    }

    std::unique_ptr<char[]> readBytes_;
    std::string addedBytes_;
    std::int32_t read_ = 0;        // entries that the file gave, from index 0
    std::int32_t firstAdded_ = 0;  // as many as the header promised
    std::int32_t added_ = 0;
};
