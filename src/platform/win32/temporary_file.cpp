#include "platform/temporary_file.h"

#include "platform/win32/file_handles.h"
#include "platform/win32/replace_file.h"
#include "platform/win32/text.h"

namespace platform {
namespace {

/// The path of the file at the end of all links, or the path itself if there is no file.
std::wstring EndOfLinks(const std::string& path) {
    OwnedHandle file;
    wchar_t name[MAX_PATH * 4];
    DWORD length = 0;
    if (OpenRegularFile(path, 0, OPEN_EXISTING, file)) {
        length = ::GetFinalPathNameByHandleW(file.get(), name, std::size(name), 0);
    }
    return length > 0 && length < std::size(name) ? std::wstring(name, length) : Wide(path);
}

std::string FolderOf(const std::string& path) {
    return path.substr(0, path.find_last_of("/\\:") + 1);
}

void RemoveAbandonedFiles(const std::string& folder) {
    WIN32_FIND_DATAW found;
    const HANDLE handle = ::FindFirstFileW(Wide(folder + ".zorvane-*").c_str(), &found);
    if (handle == INVALID_HANDLE_VALUE) {
        return;
    }
    const Owned<HANDLE, ::FindClose> search(handle);
    do {
        const std::string name = Bytes(found.cFileName);
        if (IsAbandoned(name)) {
            ::DeleteFileW(Wide(folder + name).c_str());
        }
    } while (::FindNextFileW(search.get(), &found));
}

}  // namespace

std::uint32_t ProcessId() {
    return ::GetCurrentProcessId();
}

bool IsRunning(std::uint32_t processId) {
    const OwnedHandle process(::OpenProcess(SYNCHRONIZE, FALSE, processId));
    return process != nullptr ? ::WaitForSingleObject(process.get(), 0) != WAIT_OBJECT_0
                              : ::GetLastError() != ERROR_INVALID_PARAMETER;
}

TemporaryFile::~TemporaryFile() {
    file_.Close();
    if (!name_.empty()) {
        ::DeleteFileW(Wide(name_).c_str());
    }
}

Outcome TemporaryFile::Create(const std::string& path) {
    const std::wstring target = EndOfLinks(path);
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    // Windows would replace these without asking.
    constexpr DWORD Protected = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & Protected) != 0) {
        return {false, ErrorText(ERROR_ACCESS_DENIED)};
    }
    target_ = Bytes(target);
    const std::string name = FolderOf(target_) + TemporaryName();
    Outcome outcome = file_.Open(name, File::Access::Create);
    if (outcome) {
        name_ = name;
    }
    return outcome;
}

Outcome TemporaryFile::Append(std::string_view bytes) {
    Outcome written = file_.WriteAt(size_, bytes);
    size_ += static_cast<std::int64_t>(bytes.size());
    return written;
}

Outcome TemporaryFile::Commit() {
    Outcome outcome = file_.Flush();
    if (!outcome) {
        return outcome;
    }
    file_.Close();
    const std::wstring name = Wide(name_);
    const std::wstring target = Wide(target_);
    outcome = MoveOver(name, target);
    if (outcome) {
        name_.clear();
        RemoveAbandonedFiles(FolderOf(target_));
    } else if (::GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES) {
        // It is the only copy now. Under its temporary name a later run would delete it.
        const std::wstring kept = target + L".new";
        const bool moved =
            ::MoveFileExW(name.c_str(), kept.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
        outcome.reason += "\r\nThe new content is in " + Bytes(moved ? kept : name);
        name_.clear();
    }
    return outcome;
}

bool TemporaryFile::Replaces(const File& file) const {
    OwnedHandle target;
    BY_HANDLE_FILE_INFORMATION left = {};
    BY_HANDLE_FILE_INFORMATION right = {};
    return OpenRegularFile(target_, 0, OPEN_EXISTING, target) &&
           ::GetFileInformationByHandle(target.get(), &left) &&
           ::GetFileInformationByHandle(NativeHandle(file), &right) &&
           left.dwVolumeSerialNumber == right.dwVolumeSerialNumber &&
           left.nFileIndexHigh == right.nFileIndexHigh && left.nFileIndexLow == right.nFileIndexLow;
}

}  // namespace platform
