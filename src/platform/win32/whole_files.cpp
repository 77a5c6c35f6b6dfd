// Whole files, read at once or put in place in one step.
#include <random>

#include "platform/files.h"
#include "platform/win32/file_handles.h"
#include "platform/win32/text.h"

namespace platform {
namespace {

/// The file that a path means, behind all links. The path itself when nothing is there.
std::wstring EndOfLinks(const std::string& path) {
    OwnedHandle file;
    wchar_t name[MAX_PATH * 4];
    DWORD length = 0;
    if (OpenRegularFile(path, 0, OPEN_EXISTING, file)) {
        length = ::GetFinalPathNameByHandleW(file.get(), name, std::size(name), 0);
    }
    return length > 0 && length < std::size(name) ? std::wstring(name, length) : Wide(path);
}

/// A name beside `target` that no other program will think of.
std::wstring NewName(const std::wstring& target) {
    std::random_device random;
    return target.substr(0, target.find_last_of(L"/\\:") + 1) + L"zorvane-" +
           std::to_wstring(random()) + L".tmp";
}

Outcome WriteNewFile(const std::wstring& name, std::string_view bytes) {
    File file;
    Outcome outcome = file.Open(Bytes(name), File::Access::Create);
    if (outcome) {
        outcome = file.WriteAt(0, bytes);
    }
    return outcome ? file.Flush() : outcome;
}

/// Puts one file in the place of another, whose rights it takes over, or that is not there yet.
Outcome TakePlace(const std::wstring& name, const std::wstring& target) {
    const bool hasOld = ::GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES;
    const bool done =
        hasOld ? ::ReplaceFileW(target.c_str(), name.c_str(), nullptr, 0, nullptr, nullptr) != 0
               : ::MoveFileExW(name.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0;
    return done ? Outcome{} : LastError();
}

/// Whether a file is write-protected or not a file at all: the system would put another in its
/// place without a word.
bool IsProtected(const std::wstring& target) {
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0;
}

bool AreOneFile(const std::string& left, const std::string& right) {
    OwnedHandle files[2];
    BY_HANDLE_FILE_INFORMATION facts[2] = {};
    const std::string* paths[2] = {&left, &right};
    for (int i = 0; i < 2; ++i) {
        if (!OpenRegularFile(*paths[i], 0, OPEN_EXISTING, files[i]) ||
            !::GetFileInformationByHandle(files[i].get(), &facts[i])) {
            return false;
        }
    }
    return facts[0].dwVolumeSerialNumber == facts[1].dwVolumeSerialNumber &&
           facts[0].nFileIndexHigh == facts[1].nFileIndexHigh &&
           facts[0].nFileIndexLow == facts[1].nFileIndexLow;
}

}  // namespace

Outcome ReadWholeFile(const std::string& path, std::string& bytes) {
    File file;
    Outcome outcome = file.Open(path, File::Access::Read);
    std::size_t count = 0;
    if (outcome) {
        bytes.resize(static_cast<std::size_t>(file.Size()));
        outcome = file.ReadAt(0, bytes.data(), bytes.size(), count);
    }
    bytes.resize(count);
    return outcome;
}

Outcome ReplaceWholeFile(const std::string& path, std::string_view bytes) {
    const std::wstring target = EndOfLinks(path);
    if (IsProtected(target)) {
        return {false, ErrorText(ERROR_ACCESS_DENIED)};
    }
    const std::wstring name = NewName(target);
    Outcome outcome = WriteNewFile(name, bytes);
    if (outcome) {
        outcome = TakePlace(name, target);
    }
    if (!outcome) {
        ::DeleteFileW(name.c_str());
    }
    return outcome;
}

Outcome CopyWholeFile(const std::string& from, const std::string& to) {
    std::string bytes;
    Outcome outcome = ReadWholeFile(from, bytes);
    if (outcome && AreOneFile(from, to)) {
        return {false, "The source and the target are the same file"};
    }
    return outcome ? ReplaceWholeFile(to, bytes) : outcome;
}

Outcome RemoveFile(const std::string& path) {
    return ::DeleteFileW(Wide(path).c_str()) ? Outcome{} : LastError();
}

}  // namespace platform
