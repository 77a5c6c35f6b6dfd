#include "toolkit/qt/text.h"

#include <QStringDecoder>
#include <array>

#include "platform/posix/paths.h"

namespace desktop {
namespace {

/// Windows-1252 differs from Latin-1 in the codes 0x80 to 0x9F: these are their Unicode characters.
/// The five undefined codes map to themselves.
constexpr std::array<char16_t, 32> Codes80To9F = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Above this many characters the layout of a text would be slow. It fills a screen.
constexpr qsizetype LongestDisplayText = 4096;

QString FromWindows1252(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        const bool differs = code >= 0x80 && code <= 0x9F;
        result.append(QChar(differs ? Codes80To9F[code - 0x80U] : char16_t{code}));
    }
    return result;
}

}  // namespace

QString Decode(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString result = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return decoder.hasError() ? FromWindows1252(text) : result;
}

QString DisplayText(std::string_view text) {
    QString shown = Decode(platform::NativeText(text));
    if (shown.size() > LongestDisplayText) {
        shown.truncate(LongestDisplayText);
        shown.append(QChar(0x2026));
    }
    return shown;
}

std::string Encode(const QString& text) {
    return text.toStdString();
}

QString MarkAccessKey(const QString& caption, char letter) {
    const qsizetype at = caption.indexOf(QLatin1Char(letter), 0, Qt::CaseInsensitive);
    return at < 0 ? EscapeAmpersands(caption)
                  : EscapeAmpersands(caption.first(at)) + QLatin1Char('&') +
                        EscapeAmpersands(caption.sliced(at));
}

QString EscapeAmpersands(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace desktop
