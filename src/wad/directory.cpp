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

/// Whether the cleaned name of a field of eight characters is `name`.
bool IsNamed(const char* field, std::string_view name) {
    const char* const end = field + lumpNameLength;
    field = std::find_if_not(field, end, IsPadding);
    if (name.size() > static_cast<std::size_t>(end - field)) {
        return false;
    }
    const auto isSame = [](char wanted, char character) {
        return wanted == (character == '\0' ? ' ' : character);
    };
    return std::equal(name.begin(), name.end(), field, isSame) &&
           std::all_of(field + name.size(), end, IsPadding);
}

/// The first of `count` entries from `start` on that has this name, or `count`.
std::int32_t FindNamed(const char* entries, std::int32_t start, std::int32_t count,
                       std::string_view name) {
    // A field that begins with another letter, as most do, needs no closer look.
    const char first = name.empty() ? '\0' : name.front();
    for (std::int32_t index = start; index < count; ++index) {
        const char* const field =
            entries + static_cast<std::size_t>(index) * WadDirectory::entryBytes + 8;
        if ((*field == first || IsPadding(*field)) && IsNamed(field, name)) {
            return index;
        }
    }
    return count;
}

}  // namespace

std::string StripLumpName(const char* field) {
    LumpNameField name{};
    std::replace_copy(field, field + lumpNameLength, name.begin(), '\0', ' ');
    std::size_t end = lumpNameLength;
    while (end > 0 && name[end - 1] == ' ') {
        --end;
    }
    std::string text(name.data(), lumpNameLength);  // a length that is known here copies quickest
    text.resize(end);
    if (text.starts_with(' ')) {
        text.erase(0, text.find_first_not_of(' '));
    }
    return text;
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

std::int32_t WadDirectory::Find(std::string_view name, std::int32_t start) const {
    if (start < read_) {
        const std::int32_t found = FindNamed(readBytes_.get(), start, read_, name);
        if (found < read_) {
            return found;
        }
    }
    if (name.empty() && start < firstAdded_ && read_ < firstAdded_) {
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
