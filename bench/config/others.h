// What ours is measured beside. Each does all of the work and discards the result.
#pragma once

#include <functional>
#include <string>

/// A loop that looks at each byte once through a switch and builds nothing.
void BareRead(const std::string& text);
/// A loop that looks at each byte once through a switch and writes it into a buffer.
void BareWrite(const std::string& text);

void LibconfigRead(const std::string& text);
/// Reads the text; the result writes it again.
std::function<void()> LibconfigWriter(const std::string& text);

/// Whether libucl is available; the others must not be called if not.
bool HasLibucl();
void LibuclRead(const std::string& text);
std::function<void()> LibuclWriter(const std::string& text);
