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

std::string OpenFileDialog(toolkit::Window& Owner, const std::string& Title,
                           const std::string& Filter, const std::string& InitialFile,
                           std::uint32_t Flags) {
    desktop::OpenFileName record = MakeRecord(Owner, Title, Filter, InitialFile, Flags);
    if (!desktop::GetOpenFileNameA(record)) {
        return {};
    }
    std::string result = TrimAtDoubleNull(record.lpstrFile);
    const std::size_t nul = result.find('\0');
    const bool several = (Flags & desktop::OfnAllowMultiSelect) != 0 && nul != std::string::npos;
    const std::size_t end = several ? nul : result.rfind('\\');
    if (end != std::string::npos) {
        StoreSetting("lastdir", result.substr(0, end));
    }
    return result;
}

std::string SaveFileDialog(toolkit::Window& Owner, const std::string& Title,
                           const std::string& Filter, const std::string& InitialFile,
                           std::uint32_t Flags) {
    desktop::OpenFileName record = MakeRecord(Owner, Title, Filter, InitialFile, Flags);
    return desktop::GetSaveFileNameA(record) ? TrimAtDoubleNull(record.lpstrFile) : std::string();
}

std::string BrowseForFolder(toolkit::Window& Owner, const std::string& Title) {
    return TrimAtDoubleNull(desktop::BrowseForFolderPath({&Owner, Title}));
}

std::string TrimAtDoubleNull(std::string_view Text) {
    return std::string(Text.substr(0, Text.find(std::string_view("\0\0", 2))));
}
