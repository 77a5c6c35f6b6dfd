#include "toolkit/qt/pictures.h"

#include <QIcon>
#include <QImageReader>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "toolkit/qt/look.h"

namespace desktop {
namespace {

constexpr QColor Ember(0xFF, 0x8B, 0x3D);

/// Returns the color of the band at a share (0 to 1) of its width.
QColor Dusk(double share) {
    constexpr double MiddleShare = 0.55;
    constexpr QColor Left(0x17, 0x10, 0x0E);
    constexpr QColor Middle(0x3A, 0x14, 0x0D);
    constexpr QColor Right(0x7D, 0x24, 0x10);
    return share < MiddleShare ? Blend(Left, Middle, share / MiddleShare)
                               : Blend(Middle, Right, (share - MiddleShare) / (1 - MiddleShare));
}

/// Makes the painter draw a picture of a size, scaled into the middle of a rectangle.
void FitInto(QPainter& painter, const QRectF& rect, QSizeF size) {
    const double scale = std::min(rect.width() / size.width(), rect.height() / size.height());
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
}

QPainterPath Outline(std::string_view name) {
    QPainterPath path;
    if (name == "map") {
        path.addPolygon(QPolygonF(QList<QPointF>{{1.5, 3.5},
                                                 {5.5, 1.5},
                                                 {10.5, 3.5},
                                                 {14.5, 1.5},
                                                 {14.5, 12.5},
                                                 {10.5, 14.5},
                                                 {5.5, 12.5},
                                                 {1.5, 14.5},
                                                 {1.5, 3.5}}));
        path.addPolygon(QPolygonF(QList<QPointF>{{5.5, 1.5}, {5.5, 12.5}}));
        path.addPolygon(QPolygonF(QList<QPointF>{{10.5, 3.5}, {10.5, 14.5}}));
    } else if (name == "text") {
        path.addPolygon(QPolygonF(QList<QPointF>{
            {2.5, 1.5}, {9.5, 1.5}, {13.5, 5.5}, {13.5, 14.5}, {2.5, 14.5}, {2.5, 1.5}}));
        path.addPolygon(QPolygonF(QList<QPointF>{{9.5, 1.5}, {9.5, 5.5}, {13.5, 5.5}}));
        path.addPolygon(QPolygonF(QList<QPointF>{{5, 8.5}, {11, 8.5}}));
        path.addPolygon(QPolygonF(QList<QPointF>{{5, 11.5}, {11, 11.5}}));
    }
    return path;
}

QPixmap LoadIcon(int size) {
    // Naming the format saves loading every format plugin to detect it.
    QImageReader reader(QStringLiteral(":/art/icon-%1.png").arg(size), "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

}  // namespace

void DrawBand(QPainter& painter, const QRect& rect) {
    painter.save();
    painter.translate(rect.topLeft());
    const int width = rect.width();
    // Opaque strips, one for each color: for a gradient or a translucent color, Qt starts threads.
    constexpr int Strips = 128;
    for (int strip = 0; strip < Strips; ++strip) {
        const int left = width * strip / Strips;
        painter.fillRect(left, 0, width * (strip + 1) / Strips - left, rect.height(),
                         Dusk(static_cast<double>(strip) / Strips));
    }
    const double lineHeight = rect.height() / 37.0;
    const double height = rect.height() - lineHeight;
    painter.setRenderHint(QPainter::Antialiasing);
    for (const double fromRight : {3.06, 2.5, 1.94, 1.39}) {  // in heights
        const QPointF lower(width - fromRight * height, height);
        painter.setPen(Blend(Dusk(lower.x() / width), Ember, 0.2));
        painter.drawLine(lower, lower + QPointF(height * 5 / 6, -height));
    }
    painter.restore();
    painter.fillRect(QRectF(rect.left(), rect.bottom() + 1 - lineHeight, width, lineHeight),
                     Accent);
}

void DrawMark(QPainter& painter, const QRectF& rect) {
    QLinearGradient ember(0, 0, 0, 40);
    ember.setColorAt(0, QColor(0xFF, 0xC2, 0x5A));
    ember.setColorAt(0.5, QColor(0xF0, 0x75, 0x2B));
    ember.setColorAt(1, QColor(0xB3, 0x36, 0x1B));
    painter.save();
    FitInto(painter, rect, {42, 40});
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ember);
    painter.drawPolygon(QPolygonF(
        QList<QPointF>{{6, 0}, {42, 0}, {22, 26}, {42, 26}, {36, 40}, {0, 40}, {20, 14}, {0, 14}}));
    painter.restore();
}

QPixmap OutlinePicture(std::string_view name, int side, double pixelRatio, const QColor& color) {
    QPixmap picture(QSize(side, side) * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    FitInto(painter, QRectF(0, 0, side, side), {16, 16});
    painter.setPen(QPen(color, 1.25, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPath(Outline(name));
    return picture;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        icon.addPixmap(LoadIcon(size));
    }
    return icon;
}

}  // namespace desktop
