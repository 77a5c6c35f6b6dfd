#include "dialogs/dialogs.h"

#include <algorithm>

#include "platform/files.h"
#include "state/settings.h"
#include "toolkit/dialogs.h"

namespace {

desktop::OpenFileName MakeRecord(toolkit::Window& owner, const std::string& title,
                                 const std::string& filter, const std::string& initialFile,
                                 std::uint32_t flags) {
    desktop::OpenFileName record;
    record.hwndOwner = &owner;
    record.lpstrFilter = filter;
    std::ranges::replace(record.lpstrFilter, '|', '\0');
    record.lpstrFile.assign(desktop::FileBufferSize, '\0');
    record.nMaxFile = desktop::FileBufferSize;
    record.lpstrInitialDir = SettingText("lastdir");
    if (!initialFile.empty() && platform::IsOrdinaryFile(initialFile)) {
        record.lpstrInitialDir = initialFile.substr(0, initialFile.find_last_of("\\/") + 1);
    }
    record.lpstrTitle = title;
    record.Flags = flags;
    return record;
}

}  // namespace

std::string OpenFileDialog(toolkit::Window& owner, const std::string& title,
                           const std::string& filter, const std::string& initialFile,
                           std::uint32_t flags) {
    desktop::OpenFileName record = MakeRecord(owner, title, filter, initialFile, flags);
    if (!desktop::GetOpenFileNameA(record)) {
        return {};
    }
    std::string result = TrimAtDoubleNull(record.lpstrFile);
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
    desktop::OpenFileName record = MakeRecord(owner, title, filter, initialFile, flags);
    return desktop::GetSaveFileNameA(record) ? TrimAtDoubleNull(record.lpstrFile) : std::string();
}

std::string BrowseForFolder(toolkit::Window& owner, const std::string& title) {
    return TrimAtDoubleNull(desktop::BrowseForFolderPath({&owner, title}));
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
