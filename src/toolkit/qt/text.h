// Text between the system (bytes, Windows paths) and the screen (Unicode, native paths).
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace desktop {

/// UTF-8 decoded; text that is not valid UTF-8 is read as Windows-1252 instead.
QString Decode(std::string_view text);

/// The text as a person sees it: paths native, then decoded.
QString Shown(std::string_view text);

/// What a person typed, as UTF-8.
std::string Encode(const QString& text);

/// The text for a place where "&" would mark an access key, so that it shows as it is.
QString WithoutAccessKeys(QString text);

}  // namespace desktop
