#include "wad/directory.h"

#include <algorithm>
#include <new>

#include "text/ascii.h"
#include "wad/little_endian.h"

namespace {

constexpr std::size_t NameOffset = 8;

std::size_t ByteOffset(std::int32_t index) {
    return static_cast<std::size_t>(index) * WadDirectory::EntryBytes;
}

/// Returns the name in a field, whose NULs become spaces.
std::string_view StripLumpName(LumpNameField& field) {
    std::ranges::replace(field, '\0', ' ');
    return TrimSpaces({field.data(), field.size()});
}

}  // namespace

bool WadDirectory::Read(const platform::File& file, std::int64_t offset, std::int32_t count) {
    constexpr auto Size = static_cast<std::int64_t>(EntryBytes);
    const std::int64_t available = offset < 0 ? 0 : file.Size() - offset;
    const auto stored = std::clamp<std::int64_t>((available + Size - 1) / Size, 0, count);
    std::string bytes;
    try {
        bytes.resize(static_cast<std::size_t>(stored * Size));
    } catch (const std::bad_alloc&) {
        return false;
    }
    std::size_t read = 0;
    if (!bytes.empty() && !file.ReadAt(offset, bytes.data(), bytes.size(), read)) {
        return false;
    }
    bytes_ = std::move(bytes);
    count_ = count;
    return true;
}

void WadDirectory::Add(std::int32_t filePos, std::int32_t size, std::string_view name) {
    bytes_.resize(ByteOffset(count_));
    AppendInt32(bytes_, filePos);
    AppendInt32(bytes_, size);
    bytes_ += name.substr(0, LumpNameField().size());
    ++count_;
    bytes_.resize(ByteOffset(count_), ' ');
}

std::int32_t WadDirectory::StoredCount() const {
    return static_cast<std::int32_t>(bytes_.size() / EntryBytes);
}

WadLumpEntry WadDirectory::Entry(std::int32_t index) const {
    if (index < 0 || index >= StoredCount()) {
        return {};
    }
    const char* const bytes = bytes_.data() + ByteOffset(index);
    return {DecodeInt32(bytes), DecodeInt32(bytes + 4), NameField(index)};
}

LumpNameField WadDirectory::NameField(std::int32_t index) const {
    LumpNameField field;
    std::copy_n(bytes_.data() + ByteOffset(index) + NameOffset, field.size(), field.begin());
    return field;
}

std::string WadDirectory::Name(std::int32_t index) const {
    LumpNameField field = Entry(index).name;
    return std::string(StripLumpName(field));
}

std::int32_t WadDirectory::Find(std::string_view name, std::int32_t start) const {
    const std::int32_t stored = StoredCount();
    const char initial = name.empty() ? '\0' : name.front();
    for (std::int32_t index = start; index < stored; ++index) {
        // The first character rules out most entries, unless it is padding.
        const char first = bytes_[ByteOffset(index) + NameOffset];
        if (first == initial || first == '\0' || first == ' ') {
            LumpNameField field = NameField(index);
            if (StripLumpName(field) == name) {
                return index;
            }
        }
    }
    const std::int32_t nameless = std::max(start, stored);
    return name.empty() && nameless < count_ ? nameless : -1;
}

std::string WadDirectory::Encode() const {
    std::string bytes;
    for (std::int32_t index = 0; index < count_; ++index) {
        const WadLumpEntry entry = Entry(index);
        AppendInt32(bytes, entry.filePos);
        AppendInt32(bytes, entry.size);
        bytes += TrimSpaces({entry.name.data(), entry.name.size()});
        bytes.resize(ByteOffset(index + 1));
    }
    return bytes;
}
