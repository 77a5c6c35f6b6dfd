// Who is measured beside us. Each does the whole of the work and throws the result away.
#pragma once

#include <functional>
#include <string>

/// A loop that looks at each byte once through a switch and builds nothing.
void BareRead(const std::string& text);
/// A loop that looks at each byte once through a switch and writes it into memory that is there.
void BareWrite(const std::string& text);

void LibconfigRead(const std::string& text);
/// What reads the text at its first call, and writes it again at each.
std::function<void()> LibconfigWriter(const std::string& text);

/// Whether libucl is there, without which the others must not be called.
bool HasLibucl();
void LibuclRead(const std::string& text);
std::function<void()> LibuclWriter(const std::string& text);
