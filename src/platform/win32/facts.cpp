#include "platform/facts.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/win32/text.h"
#include "platform/win32/windows_headers.h"

namespace platform {

// Windows keeps the command line itself.
std::optional<int> InitialiseProcess(int /*argumentCount*/, char** /*arguments*/) {
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    return std::nullopt;
}

std::string ProgramDirectory() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
           path.size()) {
        path.resize(path.size() * 2);
    }
    const std::string file = Bytes({path.data(), length});
    return file.substr(0, file.find_last_of('\\'));
}

VersionNumbers ProgramVersion() {
    const HRSRC place = ::FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const HGLOBAL resource = place != nullptr ? ::LoadResource(nullptr, place) : nullptr;
    if (resource == nullptr) {
        return {};
    }
    // The record follows three words and the name "VS_VERSION_INFO", aligned to four bytes.
    constexpr DWORD Before = 40;
    VS_FIXEDFILEINFO facts = {};
    if (::SizeofResource(nullptr, place) < Before + sizeof facts) {
        return {};
    }
    std::memcpy(&facts, static_cast<const char*>(::LockResource(resource)) + Before, sizeof facts);
    return {HIWORD(facts.dwFileVersionMS), LOWORD(facts.dwFileVersionMS),
            HIWORD(facts.dwFileVersionLS)};
}

std::string OwnCommandLine() {
    const std::string all = Bytes(::GetCommandLineW());
    const bool quoted = all.starts_with('"');
    std::string_view rest = all;
    rest.remove_prefix(std::min(all.find(quoted ? '"' : ' ', 1), all.size()));
    if (quoted && !rest.empty()) {
        rest.remove_prefix(1);
    }
    rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
    return std::string(rest);
}

std::vector<std::string> RefusedArguments() {
    return {};
}

void EndProcess() {
    ::ExitProcess(0);
}

}  // namespace platform
