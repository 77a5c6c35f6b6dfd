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

constexpr QRgb Ember = 0xFFFF8B3D;

QColor WithAlpha(QRgb color, double alpha) {
    QColor result(color);
    result.setAlphaF(static_cast<float>(alpha));
    return result;
}

/// Makes the painter draw a picture of a size, scaled into the middle of a rectangle.
void FitInto(QPainter& painter, const QRectF& rect, QSizeF size) {
    const double scale = std::min(rect.width() / size.width(), rect.height() / size.height());
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
}

/// A slanted stripe of the band, `from` and `to` at its lower edge.
QPolygonF Stripe(double from, double to, double height) {
    const double slant = height * 10 / 13;
    return QList<QPointF>{{from, height}, {from + slant, 0}, {to + slant, 0}, {to, height}};
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

void DrawBand(QPainter& painter, const QRectF& rect) {
    const double lineHeight = rect.height() / 37;
    const double height = rect.height() - lineHeight;
    QLinearGradient dusk(rect.topLeft(), rect.topRight());
    dusk.setColorAt(0, QColor(0x17, 0x10, 0x0E));
    dusk.setColorAt(0.55, QColor(0x3A, 0x14, 0x0D));
    dusk.setColorAt(1, QColor(0x7D, 0x24, 0x10));
    painter.save();
    painter.fillRect(rect, dusk);
    painter.translate(rect.topLeft());
    painter.setRenderHint(QPainter::Antialiasing);
    // Stripes at the right, as shares of the height from the right edge.
    const auto at = [&](double share) { return rect.width() - share * height; };
    painter.setPen(QPen(WithAlpha(Ember, 0.22), 1));
    painter.setBrush(WithAlpha(Ember, 0.08));
    painter.drawPolygon(Stripe(at(3.06), at(2.56), height));
    painter.drawPolygon(Stripe(at(2.06), at(1.81), height));
    painter.drawPolyline(Stripe(at(1.31), at(1.31), height).mid(0, 2));
    painter.restore();
    painter.fillRect(QRectF(rect.left(), rect.bottom() - lineHeight, rect.width(), lineHeight),
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
