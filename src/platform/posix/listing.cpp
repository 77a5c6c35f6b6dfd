// Looks up files and lists folders.
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "platform/files.h"
#include "platform/posix/paths.h"
#include "text/file_names.h"

namespace platform {
namespace {

std::string BareName(const std::string& native) {
    return native.substr(native.rfind('/') + 1);
}

bool IsHidden(std::string_view name) {
    return name.starts_with('.');
}

bool IsOrdinary(const std::string& native) {
    struct stat facts = {};
    return !IsHidden(BareName(native)) && stat(native.c_str(), &facts) == 0 &&
           S_ISREG(facts.st_mode);
}

}  // namespace

bool IsOrdinaryFile(const std::string& path) {
    const std::optional<std::string> exact = NativePath(path);
    if (exact && IsOrdinary(*exact)) {
        return true;
    }
    const std::optional<std::string> native = FindPath(path);
    return native && IsOrdinary(*native);
}

bool Exists(const std::string& path) {
    const std::optional<std::string> native = FindPath(path);
    struct stat facts = {};
    // A link to a missing file may still be created; one in a loop cannot.
    return native && (stat(native->c_str(), &facts) == 0 || errno != ENOENT);
}

std::optional<std::string> LookUpFileName(const std::string& path) {
    if (IsUrl(path)) {
        return std::nullopt;
    }
    const std::optional<std::string> native = FindProgram(path);
    if (!native || !IsOrdinary(*native)) {
        return "";
    }
    const std::string name = BareName(*native);
    // A colon is a separator after a drive only: elsewhere it belongs to the name.
    const std::size_t separator = path.find_last_of("/\\");
    const std::size_t start = separator != std::string::npos ? separator + 1
                              : HasDrive(path)               ? 2
                                                             : 0;
    const std::string asked = path.substr(start);
    return name.size() == asked.size() ? name : asked;
}

Outcome CheckNativeName(std::string_view path) {
    if (path.find_first_of("\"\\") == std::string_view::npos) {
        return {};
    }
    return {false, "This file cannot be used: " + std::string(path) +
                       "\r\nIts name contains a double quote or a backslash."};
}

std::vector<std::string> ListFiles(const std::string& directory, const std::string& pattern) {
    std::vector<std::string> names;
    const std::optional<std::string> folder = FindPath(directory);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(folder ? opendir(folder->c_str()) : nullptr,
                                                      closedir);
    while (const dirent* entry = listing ? readdir(listing.get()) : nullptr) {
        // Most file systems tell the type here, which saves a call for each file.
        const bool isRegular = entry->d_type == DT_REG && !IsHidden(entry->d_name);
        if (MatchesPattern(entry->d_name, pattern) &&
            (isRegular || IsOrdinary(*folder + '/' + entry->d_name))) {
            names.emplace_back(entry->d_name);
        }
    }
    std::ranges::sort(names, ListedBefore);
    return names;
}

}  // namespace platform
