// Converts between texts of the program (bytes, Windows paths) and texts on the screen (Unicode,
// native paths).
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace desktop {

/// Decodes UTF-8, or Windows-1252 if the text is not valid UTF-8.
QString Decode(std::string_view text);

/// Decodes a text to be shown, with its paths in native notation. Cuts it off after 4096
/// characters.
QString DisplayText(std::string_view text);

/// Encodes a text as UTF-8.
std::string Encode(const QString& text);

/// The caption of a control for widgets that underline the letter after a single "&": its first
/// `letter`, in either case.
QString MarkAccessKey(const QString& caption, char letter);

/// Doubles each "&", for widgets that take a single one for the mark of an access key.
QString EscapeAmpersands(QString text);

}  // namespace desktop
