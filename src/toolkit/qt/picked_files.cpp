#include "toolkit/qt/picked_files.h"

#include <algorithm>

#include "text/ascii.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// The folder of a path, with a final backslash only for the root of a drive.
std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('\\');
    const bool isRoot = slash == path.find('\\');
    return path.substr(0, isRoot ? slash + 1 : slash);
}

/// The folder and the bare names, separated by NULs; empty without paths and if the folders differ.
std::string FolderAndNames(const std::vector<std::string>& paths) {
    if (paths.empty()) {
        return {};
    }
    std::string result = FolderOf(paths.front());
    for (const std::string& path : paths) {
        if (FolderOf(path) != FolderOf(paths.front())) {
            return {};
        }
        result.append(1, '\0').append(path, path.rfind('\\') + 1);
    }
    return result;
}

/// Converts "*.wad;*.deh" to "*.wad *.deh *.WAD *.DEH".
std::string PatternsOf(const std::string& masks) {
    const std::string patterns = ReplaceAll(ReplaceAll(masks, "*.*", "*"), ";", " ");
    const std::string upper = UpperCase(patterns);
    return upper == patterns ? patterns : patterns + " " + upper;
}

}  // namespace

std::string PickedFiles(const std::vector<std::string>& paths) {
    return paths.size() == 1 ? paths.front() : FolderAndNames(paths);
}

QStringList NameFilters(const std::string& filter) {
    QStringList result;
    std::size_t start = 0;
    while (start < filter.size()) {
        const std::size_t textEnd = std::min(filter.find('\0', start), filter.size());
        const std::size_t maskStart = std::min(textEnd + 1, filter.size());
        const std::size_t maskEnd = std::min(filter.find('\0', maskStart), filter.size());
        const std::string text = filter.substr(start, textEnd - start);
        const std::string masks = filter.substr(maskStart, maskEnd - maskStart);
        result.append(Decode(text + " (" + PatternsOf(masks) + ")"));
        start = maskEnd + 1;
    }
    return result;
}

}  // namespace desktop
