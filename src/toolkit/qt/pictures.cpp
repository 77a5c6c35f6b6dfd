#include "toolkit/qt/pictures.h"

#include <QFile>
#include <QIcon>
#include <QImageReader>
#include <cmath>

#include "toolkit/qt/look.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

QString FileOf(const QString& name, int ratio) {
    const QString suffix = ratio > 1 ? QStringLiteral("@%1x").arg(ratio) : QString();
    return QStringLiteral(":/art/%1%2.png").arg(name, suffix);
}

/// Names the format, because otherwise Qt loads every format plugin to detect it.
QPixmap LoadPng(const QString& file) {
    QImageReader reader(file, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

}  // namespace

QPixmap LoadPicture(std::string_view name, double pixelRatio, const QPalette& palette) {
    QString base = Decode(name);
    const QString darkForm = base + QStringLiteral("-dark");
    if (IsDark(palette) && QFile::exists(FileOf(darkForm, 1))) {
        base = darkForm;
    }
    if (!QFile::exists(FileOf(base, 1))) {
        return {};
    }
    int ratio = std::min(3, static_cast<int>(std::ceil(pixelRatio)));
    while (ratio > 1 && !QFile::exists(FileOf(base, ratio))) {
        --ratio;
    }
    QPixmap picture = LoadPng(FileOf(base, ratio));
    picture.setDevicePixelRatio(ratio);
    return picture;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        icon.addPixmap(LoadPng(FileOf(QStringLiteral("icon-%1").arg(size), 1)));
    }
    return icon;
}

}  // namespace desktop
