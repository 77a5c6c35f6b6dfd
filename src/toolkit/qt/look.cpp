#include "toolkit/qt/look.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cstdlib>

#include "toolkit/qt/style.h"

namespace desktop {
namespace {

struct RoleColor {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr RoleColor RoleColors[] = {
    {QPalette::Window, 0xFFF3F1EF, 0xFF262120},
    {QPalette::WindowText, 0xFF222222, 0xFFECE6E2},
    {QPalette::Base, 0xFFFFFFFF, 0xFF1B1716},
    {QPalette::AlternateBase, 0xFFFAF8F6, 0xFF211C1B},
    {QPalette::Text, 0xFF222222, 0xFFECE6E2},
    {QPalette::Button, 0xFFFDFDFD, 0xFF38302E},
    {QPalette::ButtonText, 0xFF222222, 0xFFECE6E2},
    {QPalette::Light, 0xFFFFFFFF, 0xFF4A403D},
    {QPalette::Midlight, 0xFFD8D2CD, 0xFF3F3734},
    {QPalette::Mid, 0xFFB9B4B0, 0xFF635853},
    {QPalette::Dark, 0xFF9C9691, 0xFF847872},
    {QPalette::Highlight, 0xFFF6DDD3, 0xFF6A3020},
    {QPalette::HighlightedText, 0xFF222222, 0xFFFFFFFF},
    {QPalette::Link, 0xFF0B57D0, 0xFF8AB4F8},
    {QPalette::ToolTipBase, 0xFFFFF9EF, 0xFF38302E},
    {QPalette::ToolTipText, 0xFF222222, 0xFFECE6E2},
};

constexpr double DisabledShare = 0.55;

QPalette WarmPalette(QPalette palette, bool dark) {
    for (const RoleColor& row : RoleColors) {
        palette.setColor(row.role, QColor(dark ? row.dark : row.light));
    }
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor weak = Blend(palette.color(QPalette::Active, role), window, DisabledShare);
        palette.setColor(QPalette::Disabled, role, weak);
    }
    return palette;
}

}  // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

bool HasStrongContrast(const QPalette& palette) {
    const int window = palette.color(QPalette::Window).value();
    return std::abs(window - palette.color(QPalette::WindowText).value()) == 255;
}

QColor AccentOf(const QPalette& palette) {
    return HasStrongContrast(palette) ? palette.color(QPalette::Highlight) : Accent;
}

QColor TextOnAccent(const QPalette& palette) {
    return HasStrongContrast(palette) ? palette.color(QPalette::HighlightedText) : Qt::white;
}

QColor LinkColor(const QPalette& palette) {
    constexpr int Visible = 100;  // of 255 levels of gray
    const QColor link = palette.color(QPalette::Link);
    const int contrast = qGray(link.rgb()) - qGray(palette.color(QPalette::Window).rgb());
    return std::abs(contrast) < Visible ? palette.color(QPalette::WindowText) : link;
}

QColor Blend(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](int a, int b) { return a + static_cast<int>((b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

void SpaceForBold(QPainter& painter) {
    const double pixelsPerUnit = painter.device()->devicePixelRatioF();
    const double height = painter.fontMetrics().height() * pixelsPerUnit;
    QFont font = painter.font();
    font.setLetterSpacing(QFont::AbsoluteSpacing, std::max(1, qRound(height / 14)) / pixelsPerUnit);
    painter.setFont(font);
}

void DrawBold(QPainter& painter, const QRect& rect, int flags, const QString& text) {
    const double pixelsPerUnit = painter.device()->devicePixelRatioF();
    const int distance = qRound(painter.font().letterSpacing() * pixelsPerUnit);
    for (int pixel = 0; pixel <= distance; ++pixel) {
        painter.drawText(QRectF(rect).translated(pixel / pixelsPerUnit, 0), flags, text);
    }
}

void ApplyLook() {
    if (QApplication::style()->name() != QLatin1String("fusion")) {
        return;
    }
    const QPalette desktop = QApplication::palette();
    if (!HasStrongContrast(desktop)) {
        QApplication::setPalette(WarmPalette(desktop, IsDark(desktop)));
    }
    QApplication::setStyle(new Style);  // the application takes ownership
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

}  // namespace desktop
