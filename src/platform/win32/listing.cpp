// Looks up files and lists folders.
#include <algorithm>

#include "platform/files.h"
#include "platform/win32/handles.h"
#include "platform/win32/text.h"
#include "text/file_names.h"

namespace platform {
namespace {

using OwnedSearch = Owned<HANDLE, ::FindClose>;

bool IsOrdinary(DWORD attributes) {
    constexpr DWORD Excluded = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN |
                               FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DEVICE;
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & Excluded) == 0;
}

/// Calls `take` with each entry that matches a path with wildcards.
template <typename Take>
void Search(const std::string& path, Take take) {
    WIN32_FIND_DATAW found;
    const HANDLE handle = ::FindFirstFileW(Wide(path).c_str(), &found);
    if (handle == INVALID_HANDLE_VALUE) {
        return;
    }
    const OwnedSearch search(handle);
    do {
        take(found);
    } while (::FindNextFileW(search.get(), &found));
}

}  // namespace

bool IsOrdinaryFile(const std::string& path) {
    return IsOrdinary(::GetFileAttributesW(Wide(path).c_str()));
}

bool Exists(const std::string& path) {
    return ::GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<std::string> LookUpFileName(const std::string& path) {
    if (IsUrl(path)) {
        return std::nullopt;
    }
    std::string name;
    if (IsOrdinaryFile(path)) {
        Search(path, [&](const WIN32_FIND_DATAW& found) { name = Bytes(found.cFileName); });
    }
    // A short name stays: the caller cuts as many characters off the path to get the folder.
    const std::string asked = path.substr(path.find_last_of("/\\:") + 1);
    return name.empty() || name.size() == asked.size() ? name : asked;
}

// Windows itself allows neither character in a name.
Outcome CheckNativeName(std::string_view /*path*/) {
    return {};
}

std::vector<std::string> ListFiles(const std::string& directory, const std::string& pattern) {
    std::vector<std::string> names;
    // The file system's own patterns match short names too: "*.cfg" would find "a.cfg2".
    Search(directory + "\\*", [&](const WIN32_FIND_DATAW& found) {
        std::string name = Bytes(found.cFileName);
        if (IsOrdinary(found.dwFileAttributes) && MatchesPattern(name, pattern)) {
            names.push_back(std::move(name));
        }
    });
    std::ranges::sort(names, ListedBefore);
    return names;
}

}  // namespace platform
