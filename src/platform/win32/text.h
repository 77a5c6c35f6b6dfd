// Conversion between Zorvane's texts and the UTF-16 of Windows.
#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Decodes UTF-8, or Windows-1252 if the text is not valid UTF-8, as in old settings files.
std::wstring Wide(std::string_view text);

/// Encodes as UTF-8.
std::string Bytes(std::wstring_view text);

/// Returns the message of Windows for a result of GetLastError, without its final dot.
std::string ErrorText(unsigned long code);

}  // namespace platform
