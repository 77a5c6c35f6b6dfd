// What stands in a folder: ordinary files, by name and by pattern.
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
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
    return FindPath(path).has_value();
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
    const std::size_t asked = path.size() - (path.find_last_of("/\\:") + 1);
    return name.size() == asked ? name : path.substr(path.size() - asked);
}

std::vector<std::string> ListFiles(const std::string& directory, const std::string& pattern) {
    std::vector<std::string> names;
    const std::optional<std::string> folder = FindPath(directory);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(folder ? opendir(folder->c_str()) : nullptr,
                                                      closedir);
    while (const dirent* entry = listing ? readdir(listing.get()) : nullptr) {
        if (MatchesPattern(entry->d_name, pattern) && IsOrdinary(*folder + '/' + entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    std::ranges::sort(names, ListedBefore);
    return names;
}

}  // namespace platform
