#include "wad/directory.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "text/ascii.h"
#include "wad/little_endian.h"

std::string StripLumpName(const char* field) {
    LumpNameField name{};
    std::replace_copy(field, field + lumpNameLength, name.begin(), '\0', ' ');
    return std::string(TrimBlanks({name.data(), name.size()}));
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

std::int32_t WadDirectory::Find(std::string_view name) const {
    for (std::int32_t index = 0; index < Count(); ++index) {
        if (LumpNameIs(NameField(index), name)) {
            return index;
        }
        if (index == read_ && index < firstAdded_) {
            index = firstAdded_ - 1;  // all the missing ones are as nameless as this one
        }
    }
    return -1;
}

std::string WadDirectory::Encode(const WadLumpEntry& entry) {
    std::string bytes;
    AppendInt32(bytes, entry.filePos);
    AppendInt32(bytes, entry.size);
    bytes += TrimBlanks({entry.name.data(), entry.name.size()});
    bytes.resize(entryBytes, '\0');
    return bytes;
}
