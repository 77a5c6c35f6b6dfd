#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "platform/posix/paths.h"
#include "text/ascii.h"

namespace platform {
namespace {

bool IsLetter(char character) {
    const char lower = LowerCase(character);
    return lower >= 'a' && lower <= 'z';
}

bool NameExists(const std::string& native) {
    struct stat facts = {};
    return lstat(native.c_str(), &facts) == 0;
}

bool IsRegular(const std::string& native) {
    struct stat facts = {};
    return stat(native.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

/// Replaces each component of `native` by its name on the disk, up to the first that does not
/// exist. The separators stay. Returns whether all of it exists.
bool CorrectNames(std::string& native, FolderNames& names) {
    if (NameExists(native)) {
        return true;
    }
    std::size_t start = native.find_first_not_of('/');
    while (start != std::string::npos) {
        const std::size_t end = std::min(native.find('/', start), native.size());
        if (!NameExists(native.substr(0, end))) {
            const std::string folder = start == 0 ? "." : native.substr(0, start);
            const std::string* name = names.Find(folder, native.substr(start, end - start));
            if (name == nullptr) {
                return false;
            }
            native.replace(start, end - start, *name);
        }
        start = native.find_first_not_of('/', end);
    }
    return NameExists(native);
}

}  // namespace

bool HasDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':' && IsLetter(path[0]);
}

std::optional<std::string> NativePath(std::string_view path) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    if (HasDrive(path)) {
        if (LowerCase(path[0]) != 'z') {
            return std::nullopt;
        }
        path.remove_prefix(2);
    }
    std::string native(path.empty() ? "/" : path);
    std::ranges::replace(native, '\\', '/');
    return native;
}

std::optional<std::string> FindPath(std::string_view path) {
    std::optional<std::string> native = NativePath(path);
    FolderNames names;
    if (native && !CorrectNames(*native, names)) {
        native.reset();
    }
    return native;
}

const std::string* FolderNames::Find(const std::string& folder, std::string_view name) {
    const auto [listed, isNew] = folders_.try_emplace(folder);
    ByLowerCase& names = listed->second;
    if (isNew) {
        const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
        while (const dirent* entry = listing ? readdir(listing.get()) : nullptr) {
            const std::string candidate = entry->d_name;
            std::string& first = names.try_emplace(LowerCase(candidate), candidate).first->second;
            first = std::min(first, candidate);
        }
    }
    const auto found = names.find(LowerCase(name));
    return found == names.end() ? nullptr : &found->second;
}

std::optional<std::string> TargetPath(std::string_view path, FolderNames& names) {
    std::optional<std::string> native = NativePath(path);
    if (native) {
        CorrectNames(*native, names);
    }
    return native;
}

std::optional<std::string> TargetPath(std::string_view path) {
    FolderNames names;
    return TargetPath(path, names);
}

std::optional<std::string> FindProgram(std::string_view path) {
    constexpr std::string_view Ending = ".exe";
    std::optional<std::string> native = FindPath(path);
    if (!native && EndsWithIgnoringCase(path, Ending)) {
        native = FindPath(path.substr(0, path.size() - Ending.size()));
    }
    if (native && !IsRegular(*native)) {
        native.reset();
    }
    return native;
}

std::string WindowsPath(std::string_view native) {
    std::string path = "Z:";
    path.append(native);
    std::ranges::replace(path, '/', '\\');
    return path;
}

std::string NativeText(std::string_view text) {
    std::string shown;
    bool isPath = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (LowerCase(text.substr(at, 3)) == "z:\\") {
            isPath = true;
            ++at;
            continue;
        }
        isPath = isPath && character != '\n' && character != '\r';
        shown += isPath && character == '\\' ? '/' : character;
    }
    return shown;
}

}  // namespace platform
