#include "platform/files.h"

#include <fcntl.h>
#include <io.h>

#include "platform/win32/file_handles.h"
#include "platform/win32/text.h"

namespace platform {
namespace {

/// Sets where the file is read or written next. Returns whether it could.
bool MoveTo(HANDLE file, std::int64_t position) {
    LARGE_INTEGER distance = {};
    distance.QuadPart = position;
    return ::SetFilePointerEx(file, distance, nullptr, FILE_BEGIN) != 0;
}

/// One call transfers less than 4 GiB.
DWORD Piece(std::size_t size) {
    constexpr std::size_t Largest = std::size_t{1} << 30;
    return static_cast<DWORD>(size < Largest ? size : Largest);
}

}  // namespace

HANDLE NativeHandle(const File& file) {
    // _get_osfhandle(-1) would terminate the program.
    return file.IsOpen() ? reinterpret_cast<HANDLE>(_get_osfhandle(file.Handle()))
                         : INVALID_HANDLE_VALUE;
}

Outcome LastError() {
    return {false, ErrorText(::GetLastError())};
}

Outcome OpenRegularFile(const std::string& path, DWORD access, DWORD disposition,
                        OwnedHandle& file) {
    constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    file.reset(::CreateFileW(Wide(path).c_str(), access, ShareAll, nullptr, disposition,
                             FILE_ATTRIBUTE_NORMAL, nullptr));
    if (file.get() == INVALID_HANDLE_VALUE) {
        return LastError();
    }
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) {
        file.reset(INVALID_HANDLE_VALUE);
        return {false, ErrorText(ERROR_INVALID_NAME)};
    }
    return {};
}

Outcome File::Open(const std::string& path, Access access) {
    Close();
    const bool toWrite = access != Access::Read;
    OwnedHandle native;
    Outcome outcome =
        OpenRegularFile(path, toWrite ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ,
                        access == Access::Create ? OPEN_ALWAYS : OPEN_EXISTING, native);
    if (!outcome) {
        return outcome;
    }
    handle_ = _open_osfhandle(reinterpret_cast<std::intptr_t>(native.get()),
                              _O_BINARY | _O_NOINHERIT | (toWrite ? _O_RDWR : _O_RDONLY));
    if (handle_ < 0) {
        // The C runtime has no descriptor left. The handle is still ours.
        return {false, ErrorText(ERROR_TOO_MANY_OPEN_FILES)};
    }
    static_cast<void>(native.release());
    return {};
}

void File::Close() {
    if (IsOpen()) {
        _close(std::exchange(handle_, -1));
    }
}

Outcome File::ReadAt(std::int64_t position, void* buffer, std::size_t size,
                     std::size_t& count) const {
    count = 0;
    if (!MoveTo(NativeHandle(*this), position)) {
        return LastError();
    }
    while (count < size) {
        DWORD read = 0;
        if (!::ReadFile(NativeHandle(*this), static_cast<char*>(buffer) + count,
                        Piece(size - count), &read, nullptr)) {
            count = 0;
            return LastError();
        }
        if (read == 0) {
            break;
        }
        count += read;
    }
    return {};
}

Outcome File::WriteAt(std::int64_t position, std::string_view bytes) {
    if (!MoveTo(NativeHandle(*this), position)) {
        return LastError();
    }
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(NativeHandle(*this), bytes.data(), Piece(bytes.size()), &written,
                         nullptr)) {
            return LastError();
        }
        bytes.remove_prefix(written);
    }
    return {};
}

Outcome File::Flush() {
    return ::FlushFileBuffers(NativeHandle(*this)) ? Outcome{} : LastError();
}

std::int64_t File::Size() const {
    LARGE_INTEGER size = {};
    return ::GetFileSizeEx(NativeHandle(*this), &size) ? size.QuadPart : 0;
}

Outcome File::Seek(std::int64_t position) const {
    if (!IsOpen() || _lseeki64(handle_, position, SEEK_SET) != position) {
        return {false, ErrorText(ERROR_SEEK)};
    }
    return {};
}

Outcome RemoveFile(const std::string& path) {
    return ::DeleteFileW(Wide(path).c_str()) ? Outcome{} : LastError();
}

}  // namespace platform
