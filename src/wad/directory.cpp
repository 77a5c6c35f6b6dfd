#include "wad/directory.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "text/ascii.h"
#include "wad/little_endian.h"

namespace {

bool IsPadding(char character) {
    return character == '\0' || character == ' ';
}

inline std::string_view TrimPadding(const char* field) {
    const char* end = field + lumpNameLength;
    while (end != field && IsPadding(end[-1])) {
        --end;
    }
    return {std::find_if_not(field, end, IsPadding), end};
}

/// The first of `count` entries from `start` on that has this name, or `count`.
std::int32_t FindNamed(const char* entries, std::int32_t start, std::int32_t count,
                       const WantedName& name) {
    for (std::int32_t index = start; index < count; ++index) {
        if (name.IsIn(entries + static_cast<std::size_t>(index) * WadDirectory::entryBytes + 8)) {
            return index;
        }
    }
    return count;
}

}  // namespace

WantedName::WantedName(std::string_view name)
    : name_(name),
      first_(name.empty() ? '\0' : name.front()),
      isPossible_(name.size() <= lumpNameLength && name.find('\0') == std::string_view::npos) {
    name.copy(usual_.data(), usual_.size());
}

// Most fields begin with another letter, and most of the others hold just the name and NULs:
// neither needs a closer look.
bool WantedName::IsIn(const char* field) const {
    if (*field != first_ && !IsPadding(*field)) {
        return false;
    }
    const bool isUsual = std::memcmp(field, usual_.data(), lumpNameLength) == 0;
    return isUsual ? isPossible_ : StripLumpName(field) == name_;
}

std::string StripLumpName(const char* field) {
    std::string name(TrimPadding(field));
    std::ranges::replace(name, '\0', ' ');
    return name;
}

// Made where it stays: moving a short text that was made just now is what takes longest here.
void AppendLumpName(const char* field, std::vector<std::string>& names) {
    const std::string_view name = TrimPadding(field);
    names.emplace_back(name);
    if (std::ranges::find(name, '\0') != name.end()) {
        names.back() = StripLumpName(field);
    }
}

bool WadDirectory::Read(const platform::File& file, std::int64_t offset, std::int32_t count) {
    Clear();
    const std::int64_t wanted = std::int64_t{count} * std::int64_t{entryBytes};
    const std::int64_t there = offset < 0 ? 0 : std::max<std::int64_t>(file.Size() - offset, 0);
    const auto bytes = static_cast<std::size_t>(std::min(wanted, there));
    const std::size_t room = (bytes + entryBytes - 1) / entryBytes * entryBytes;
    readBytes_.reset(new (std::nothrow) char[room]);
    if (!readBytes_) {
        return false;
    }
    const std::size_t got = bytes > 0 ? file.ReadAt(offset, readBytes_.get(), bytes) : 0;
    std::memset(readBytes_.get() + got, 0, room - got);
    read_ = static_cast<std::int32_t>((got + entryBytes - 1) / entryBytes);
    firstAdded_ = count;
    return true;
}

void WadDirectory::Add(const WadLumpEntry& entry) {
    AppendInt32(addedBytes_, entry.filePos);
    AppendInt32(addedBytes_, entry.size);
    addedBytes_.append(entry.name.data(), entry.name.size());
    ++added_;
}

WadLumpEntry WadDirectory::Entry(std::int32_t index) const {
    const char* const bytes = Bytes(index);
    WadLumpEntry entry{DecodeInt32(bytes), DecodeInt32(bytes + 4), {}};
    std::copy_n(NameField(index), lumpNameLength, entry.name.begin());
    return entry;
}

std::int32_t WadDirectory::Find(const WantedName& name, std::int32_t start) const {
    if (start < read_) {
        const std::int32_t found = FindNamed(readBytes_.get(), start, read_, name);
        if (found < read_) {
            return found;
        }
    }
    if (name.IsIn(missing.data()) && start < firstAdded_ && read_ < firstAdded_) {
        return std::max(start, read_);
    }
    const std::int32_t found =
        FindNamed(addedBytes_.data(), std::max(start - firstAdded_, 0), added_, name);
    return found < added_ ? firstAdded_ + found : -1;
}

std::string WadDirectory::Encode(const WadLumpEntry& entry) {
    std::string bytes;
    AppendInt32(bytes, entry.filePos);
    AppendInt32(bytes, entry.size);
    bytes += TrimBlanks({entry.name.data(), entry.name.size()});
    bytes.resize(entryBytes, '\0');
    return bytes;
}
