// Between the bytes of the system's texts and the wide texts of Windows.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Decodes UTF-8, or Windows-1252 for a text that is not valid UTF-8, so that old files show as
/// they were meant.
std::wstring Wide(std::string_view text);

/// Encodes as UTF-8.
std::string Bytes(std::wstring_view text);

/// The words of Windows for an error code of GetLastError.
std::string ErrorText(unsigned long code);

}  // namespace platform
