// Who is measured beside us. Each does the whole of the work and throws the result away.
#pragma once

#include <functional>
#include <string>

/// A loop that looks at each byte once through a switch and builds nothing.
void BareRead(const std::string& text);
/// A loop that looks at each byte once through a switch and writes it into memory that is there.
void BareWrite(const std::string& text);

void LibconfigRead(const std::string& text);
/// Reads the text and gives what writes it again.
std::function<void()> LibconfigWriter(const std::string& text);

void LibuclRead(const std::string& text);
std::function<void()> LibuclWriter(const std::string& text);
