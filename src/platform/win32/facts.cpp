#include "platform/facts.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/win32/text.h"
#include "platform/win32/windows_headers.h"

namespace platform {
namespace {

constexpr wchar_t Spaces[] = L" \t";

/// Returns the end of the argument at `start`. As in CommandLineToArgvW, double quotes may enclose
/// any part of it. Its rule for a backslash before a quote is left out: no file name has a quote.
std::size_t EndOfArgument(std::wstring_view line, std::size_t start) {
    bool quoted = false;
    std::size_t end = start;
    while (end < line.size() &&
           (quoted || std::wstring_view(Spaces).find(line[end]) == std::wstring_view::npos)) {
        quoted ^= line[end++] == L'"';
    }
    return end;
}

/// Returns the full path in double quotes if the argument names an existing file, otherwise the
/// argument as it is. Explorer quotes only paths with spaces.
std::string QuotedIfFile(const std::wstring& argument) {
    std::wstring name = argument;
    std::erase(name, L'"');
    const DWORD attributes = ::GetFileAttributesW(name.c_str());
    wchar_t path[MAX_PATH] = L"";
    const bool isFile = attributes != INVALID_FILE_ATTRIBUTES &&
                        (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
                        ::GetFullPathNameW(name.c_str(), MAX_PATH, path, nullptr) < MAX_PATH;
    return isFile ? '"' + Bytes(path) + '"' : Bytes(argument);
}

}  // namespace

// Windows keeps the command line itself.
std::optional<int> InitializeProcess(int /*argumentCount*/, char** /*arguments*/) {
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
    const std::wstring all = ::GetCommandLineW();
    std::string result;
    std::size_t end = EndOfArgument(all, 0);  // of the program's own name
    for (;;) {
        const std::size_t start = all.find_first_not_of(Spaces, end);
        if (start == std::wstring::npos) {
            return result;
        }
        end = EndOfArgument(all, start);
        result += (result.empty() ? "" : " ") + QuotedIfFile(all.substr(start, end - start));
    }
}

std::vector<std::string> RefusalReasons() {
    return {};
}

void EndProcess() {
    ::ExitProcess(0);
}

}  // namespace platform
