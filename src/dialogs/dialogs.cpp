#include "dialogs/dialogs.h"

#include <algorithm>

#include "platform/files.h"
#include "state/settings.h"
#include "toolkit/dialogs.h"

namespace {

// Longest accepted results, in bytes: what fits into the buffers of 258 and 260 bytes that Windows
// programs customarily pass, without the final NULs.
constexpr std::size_t LongestFileResult = 256;
constexpr std::size_t LongestFolder = 259;

desktop::OpenFileName MakeRecord(toolkit::Window& owner, const std::string& title,
                                 const std::string& filter, const std::string& initialFile,
                                 std::uint32_t flags) {
    desktop::OpenFileName record;
    record.hwndOwner = &owner;
    record.lpstrFilter = filter;
    std::ranges::replace(record.lpstrFilter, '|', '\0');
    record.lpstrInitialDir = SettingText("lastdir");
    if (!initialFile.empty() && platform::IsOrdinaryFile(initialFile)) {
        record.lpstrInitialDir = initialFile.substr(0, initialFile.find_last_of("\\/") + 1);
    }
    record.lpstrTitle = title;
    record.Flags = flags;
    return record;
}

/// Shows one of the two dialogs. Returns its result, or the empty text if it is too long.
std::string Run(bool (*dialog)(desktop::OpenFileName&), desktop::OpenFileName record) {
    const bool confirmed = dialog(record);
    std::string result = TrimAtDoubleNull(record.lpstrFile);
    return confirmed && result.size() <= LongestFileResult ? result : std::string();
}

}  // namespace

std::string OpenFileDialog(toolkit::Window& owner, const std::string& title,
                           const std::string& filter, const std::string& initialFile,
                           std::uint32_t flags) {
    std::string result =
        Run(desktop::GetOpenFileNameA, MakeRecord(owner, title, filter, initialFile, flags));
    const std::size_t nul = result.find('\0');
    const bool several = (flags & desktop::OfnAllowMultiSelect) != 0 && nul != std::string::npos;
    const std::size_t end = several ? nul : result.rfind('\\');
    if (end != std::string::npos) {
        StoreSetting("lastdir", result.substr(0, end));
    }
    return result;
}

std::string SaveFileDialog(toolkit::Window& owner, const std::string& title,
                           const std::string& filter, const std::string& initialFile,
                           std::uint32_t flags) {
    return Run(desktop::GetSaveFileNameA, MakeRecord(owner, title, filter, initialFile, flags));
}

std::string BrowseForFolder(toolkit::Window& owner, const std::string& title) {
    std::string folder = desktop::BrowseForFolderPath({&owner, title});
    return folder.size() <= LongestFolder ? folder : std::string();
}

std::vector<std::string> ChosenFiles(const std::string& result) {
    std::size_t nul = result.find('\0');
    if (nul == std::string::npos) {
        return result.empty() ? std::vector<std::string>() : std::vector{result};
    }
    const std::string folder = result.substr(0, nul) + "\\";
    std::vector<std::string> paths;
    while (nul != std::string::npos) {
        const std::size_t start = nul + 1;
        nul = result.find('\0', start);
        paths.push_back(folder + result.substr(start, nul - start));
    }
    return paths;
}

std::string TrimAtDoubleNull(std::string_view text) {
    return std::string(text.substr(0, text.find(std::string_view("\0\0", 2))));
}
