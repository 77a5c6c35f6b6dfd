#include "platform/win32/text.h"

#include "platform/win32/windows_headers.h"

namespace platform {
namespace {

constexpr UINT Windows1252 = 1252;

std::wstring Decode(std::string_view text, UINT codePage, DWORD flags) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = ::MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

}  // namespace

std::wstring Wide(std::string_view text) {
    std::wstring wide = Decode(text, CP_UTF8, MB_ERR_INVALID_CHARS);
    return wide.empty() && !text.empty() ? Decode(text, Windows1252, 0) : wide;
}

std::string Bytes(std::wstring_view text) {
    constexpr std::size_t LongestCharacter = 3;
    std::string bytes(text.size() * LongestCharacter, '\0');
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                              static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

std::string ErrorText(unsigned long code) {
    wchar_t words[512];
    const DWORD length =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                         0, words, static_cast<DWORD>(std::size(words)), nullptr);
    std::string text = Bytes({words, length});
    text.erase(text.find_last_not_of("\r\n .") + 1);
    return text.empty() ? "error " + std::to_string(code) : text;
}

}  // namespace platform
