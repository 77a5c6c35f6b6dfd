#include "toolkit/qt/pictures.h"

#include <QIcon>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QResource>
#include <algorithm>
#include <cstdlib>

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

/// The program's name, as an SVG path of the commands M, L and Q. Outlines of DejaVu Sans Bold,
/// which is free to use; loading the font itself would take a twentieth of the start.
constexpr const char* Wordmark =
    "M5 0L250 0L250 46L93 235L254 235L254 292L0 292L0 246L156 57L5 57L5 0"
    "M410 118Q387 118 374 134Q362 151 362 182Q362 214 374 231Q387 247 410 247Q433 247 445 231"
    "Q457 214 457 182Q457 151 445 134Q433 118 410 118"
    "M410 68Q466 68 498 98Q530 129 530 182Q530 236 498 267Q466 297 410 297Q353 297 321 267"
    "Q289 236 289 182Q289 129 321 98Q353 68 410 68"
    "M743 132Q734 128 725 126Q716 124 706 124Q679 124 665 141Q650 159 650 191L650 292L580 292"
    "L580 73L650 73L650 109Q664 87 681 77Q699 68 723 68Q727 68 731 68Q735 68 743 69L743 132"
    "M750 73L820 73L875 224L929 73L999 73L913 292L836 292L750 73"
    "M1137 193Q1115 193 1104 201Q1093 208 1093 222Q1093 236 1101 243Q1110 251 1126 251"
    "Q1146 251 1159 237Q1173 222 1173 201L1173 193L1137 193"
    "M1243 167L1243 292L1173 292L1173 259Q1159 279 1141 288Q1124 297 1098 297Q1064 297 1043 277"
    "Q1022 258 1022 226Q1022 188 1049 170Q1075 152 1132 152L1173 152L1173 146Q1173 130 1160 122"
    "Q1147 114 1119 114Q1096 114 1077 119Q1058 123 1041 132L1041 79Q1064 73 1086 70"
    "Q1109 68 1132 68Q1191 68 1217 91Q1243 114 1243 167"
    "M1528 158L1528 292L1458 292L1458 270L1458 190Q1458 161 1457 151Q1455 140 1452 135"
    "Q1448 128 1441 124Q1434 120 1425 120Q1403 120 1391 137Q1378 154 1378 184L1378 292L1308 292"
    "L1308 73L1378 73L1378 105Q1394 86 1412 77Q1430 68 1451 68Q1489 68 1509 91"
    "Q1528 114 1528 158"
    "M1812 182L1812 202L1648 202Q1651 226 1666 238Q1681 251 1708 251Q1730 251 1754 244"
    "Q1777 238 1801 224L1801 278Q1776 288 1752 292Q1727 297 1702 297Q1643 297 1610 267"
    "Q1577 237 1577 182Q1577 129 1609 98Q1641 68 1698 68Q1750 68 1781 99Q1812 130 1812 182"
    "M1740 158Q1740 138 1728 126Q1716 114 1698 114Q1677 114 1665 125Q1652 137 1649 158L1740 158";
constexpr double WordmarkCapHeight = 292;

/// Makes the painter draw a picture of a size, scaled into the middle of a rectangle.
void FitInto(QPainter& painter, const QRectF& rect, QSizeF size) {
    const double scale = std::min(rect.width() / size.width(), rect.height() / size.height());
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-size.width() / 2, -size.height() / 2);
}

QList<QPolygonF> Outline(std::string_view name) {
    using Line = QList<QPointF>;
    if (name == "map") {
        return {Line{{1.5, 3.5},
                     {5.5, 1.5},
                     {10.5, 3.5},
                     {14.5, 1.5},
                     {14.5, 12.5},
                     {10.5, 14.5},
                     {5.5, 12.5},
                     {1.5, 14.5},
                     {1.5, 3.5}},
                Line{{5.5, 1.5}, {5.5, 12.5}}, Line{{10.5, 3.5}, {10.5, 14.5}}};
    }
    if (name == "text") {
        return {Line{{2.5, 1.5}, {9.5, 1.5}, {13.5, 5.5}, {13.5, 14.5}, {2.5, 14.5}, {2.5, 1.5}},
                Line{{9.5, 1.5}, {9.5, 5.5}, {13.5, 5.5}}, Line{{5.5, 8.5}, {10.5, 8.5}},
                Line{{5.5, 11.5}, {10.5, 11.5}}};
    }
    return {};
}

QPainterPath WordmarkPath() {
    QPainterPath path;
    const char* next = Wordmark;
    const auto takePoint = [&next] {
        char* end = nullptr;
        const auto x = static_cast<double>(std::strtol(next, &end, 10));
        const auto y = static_cast<double>(std::strtol(end, &end, 10));
        next = end;
        return QPointF(x, y);
    };
    while (const char command = *next++) {
        const QPointF point = takePoint();
        if (command == 'M') {
            path.moveTo(point);
        } else if (command == 'L') {
            path.lineTo(point);
        } else {
            path.quadTo(point, takePoint());
        }
    }
    return path;
}

QPixmap LoadIcon(int size) {
    const QResource pixels(QStringLiteral(":/art/icon-%1.rgba").arg(size));
    return QPixmap::fromImage(QImage(pixels.data(), size, size, QImage::Format_RGBA8888));
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

void DrawWordmark(QPainter& painter, const QRectF& rect) {
    const double scale = rect.height() / 2 / WordmarkCapHeight;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.left(), rect.center().y() - rect.height() / 4);
    painter.scale(scale, scale);
    painter.fillPath(WordmarkPath(), Qt::white);
    painter.restore();
}

void DrawLines(QPainter& painter, const QPolygonF& points) {
    for (qsizetype i = 1; i < points.size(); ++i) {
        painter.drawLine(points[i - 1], points[i]);
    }
}

QPixmap OutlinePicture(std::string_view name, int side, double pixelRatio, const QColor& color) {
    QPixmap picture(QSize(side, side) * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    FitInto(painter, QRectF(0, 0, side, side), {16, 16});
    painter.setPen(QPen(color, 1.25));
    for (const QPolygonF& line : Outline(name)) {
        DrawLines(painter, line);
    }
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
