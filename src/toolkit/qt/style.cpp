#include "toolkit/qt/style.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include "toolkit/qt/look.h"
#include "toolkit/qt/pictures.h"

namespace desktop {
namespace {

constexpr double CornerRadius = 4;
/// Additional space beside the text in a field, in pixels.
constexpr int TextInset = 4;

/// Draws a rounded surface with its outline inside `rect`. Fills both, because stroking takes many
/// times as long.
void DrawSurface(QPainter& painter, const QRect& rect, const QBrush& fill, const QPen& outline,
                 double radius = CornerRadius) {
    const double width = outline.widthF();
    const QRectF outer(rect);
    QPainterPath path;
    path.addRoundedRect(outer, radius + width / 2, radius + width / 2);
    QPainterPath inside;
    inside.addRoundedRect(outer.adjusted(width, width, -width, -width), radius - width / 2,
                          radius - width / 2);
    if (fill == Qt::NoBrush) {
        path.addPath(inside);  // leaves the inside out
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, outline.brush());
    painter.fillPath(inside, fill);
    painter.restore();
}

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

QColor Outline(const QStyleOption& option) {
    if (HasStrongContrast(option.palette)) {
        return option.palette.color(QPalette::WindowText);
    }
    return Has(option, QStyle::State_Enabled) ? option.palette.color(QPalette::Mid)
                                              : Blend(option.palette.color(QPalette::Mid),
                                                      option.palette.color(QPalette::Window), 0.5);
}

/// Tinted with the highlight color under the pointer, and with the outline color while pressed.
QColor ButtonFill(const QStyleOption& option) {
    const QColor button = option.palette.color(QPalette::Button);
    if (!Has(option, QStyle::State_Enabled)) {
        return Blend(button, option.palette.color(QPalette::Window), 0.6);
    }
    if (Has(option, QStyle::State_Sunken) || Has(option, QStyle::State_On)) {
        return Blend(button, option.palette.color(QPalette::Mid), 0.45);
    }
    return Has(option, QStyle::State_MouseOver)
               ? Blend(button, option.palette.color(QPalette::Highlight), 0.5)
               : button;
}

QPen FocusPen(const QStyleOption& option) {
    if (HasStrongContrast(option.palette)) {
        return {option.palette.color(QPalette::WindowText), 2.5};
    }
    return {IsDark(option.palette) ? Accent.lighter(160) : Accent, 1.6};
}

QPen EdgePen(const QStyleOption& option) {
    return Has(option, QStyle::State_HasFocus) ? FocusPen(option) : QPen(Outline(option), 1);
}

bool IsDefaultButton(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
           Has(option, QStyle::State_Enabled);
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    const bool isMarked = IsDefaultButton(option) && !Has(option, QStyle::State_HasFocus);
    const QColor mark =
        HasStrongContrast(option.palette) ? Outline(option) : option.palette.color(QPalette::Dark);
    DrawSurface(painter, option.rect, ButtonFill(option),
                isMarked ? QPen(mark, 1.6) : EdgePen(option));
}

void DrawCheckMark(QPainter& painter, const QRect& box, const QColor& color) {
    const QTransform unit(box.width() / 14.0, 0, 0, box.height() / 14.0, box.x(), box.y());
    QPainterPath mark({3.2, 7.4});
    mark.lineTo(6, 10.2);
    mark.lineTo(11, 4.4);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, box.width() / 7.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(unit.map(mark));
    painter.restore();
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
    const bool checked = Has(option, QStyle::State_On);
    const QColor base = option.palette.color(QPalette::Base);
    QColor fill = checked ? AccentOf(option.palette) : base;
    if (!Has(option, QStyle::State_Enabled)) {
        fill = Blend(fill, option.palette.color(QPalette::Window), 0.6);
    } else if (Has(option, QStyle::State_Sunken)) {
        fill = Blend(fill, option.palette.color(QPalette::Mid), 0.45);
    } else if (Has(option, QStyle::State_MouseOver)) {
        fill = Blend(fill, option.palette.color(QPalette::Highlight), checked ? 0.15 : 0.5);
    }
    const QColor outline = checked ? fill.darker(130)
                           : HasStrongContrast(option.palette)
                               ? Outline(option)
                               : option.palette.color(QPalette::Dark);
    DrawSurface(painter, option.rect, fill, QPen(outline, 1), option.rect.width() / 5.0);
    if (checked) {
        DrawCheckMark(painter, option.rect, TextOnAccent(option.palette));
    }
}

void DrawArrow(QPainter& painter, const QRect& field, const QStyleOption& option) {
    const double size = field.height() / 3.4;
    const QPointF middle = QRectF(field).center();
    const QPointF tip(middle.x(), middle.y() + size / 4);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::ButtonText), 1.4));
    DrawLines(painter, QList<QPointF>{tip - QPointF(size / 2, size / 2), tip,
                                      tip + QPointF(size / 2, -size / 2)});
    painter.restore();
}

/// Draws a group box whose outline is interrupted by its caption.
void DrawGroup(QPainter& painter, const QStyleOptionGroupBox& group) {
    SpaceForBold(painter);
    const int textHeight = group.fontMetrics.height();
    const int textWidth = painter.fontMetrics().horizontalAdvance(group.text);
    const QRect text(group.rect.x() + textHeight, group.rect.y(), textWidth, textHeight);
    painter.save();
    if (!group.text.isEmpty()) {
        const int gap = textHeight / 3;
        painter.setClipRegion(QRegion(group.rect).subtracted(text.adjusted(-gap, 0, gap, 0)));
    }
    DrawSurface(painter, group.rect.adjusted(0, textHeight / 2, 0, 0), Qt::NoBrush,
                QPen(Outline(group), 1), CornerRadius + 1);
    painter.restore();
    painter.setPen(group.palette.color(QPalette::WindowText));
    DrawBold(painter, text, Qt::AlignLeft | Qt::AlignVCenter, group.text);
}

bool IsInCombo(const QWidget* widget) {
    return widget != nullptr && qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
}

int FontHeight(const QWidget* widget) {
    return QFontMetrics(widget != nullptr ? widget->font() : QApplication::font()).height();
}

}  // namespace

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    const bool inCombo = IsInCombo(widget);
    if (element == PE_PanelButtonCommand) {
        DrawButton(*painter, *option);
    } else if (element == PE_IndicatorCheckBox) {
        DrawCheckBox(*painter, *option);
    } else if (element == PE_FrameFocusRect) {
        // A selected row needs none: it is filled, and its list has a ring.
        const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(option);
        if (focus == nullptr ||
            focus->backgroundColor != option->palette.color(QPalette::Highlight)) {
            DrawSurface(*painter, option->rect, Qt::NoBrush, FocusPen(*option), 2);
        }
    } else if (element == PE_PanelLineEdit && !inCombo) {
        DrawSurface(*painter, option->rect, option->palette.color(QPalette::Base),
                    EdgePen(*option));
    } else if (element == PE_PanelMenu || (element == PE_Frame && inCombo)) {
        const QBrush fill = inCombo ? QBrush() : option->palette.base();
        DrawSurface(*painter, option->rect, fill, QPen(Outline(*option), 1), 0);
    } else if (element == PE_PanelTipLabel) {
        DrawSurface(*painter, option->rect, option->palette.color(QPalette::ToolTipBase),
                    QPen(Outline(*option), 1), 0);
    } else if (element == PE_Frame) {
        // Small corners, because the rows inside have square ones.
        DrawSurface(*painter, option->rect, Qt::NoBrush, EdgePen(*option), 1.5);
    } else if (element != PE_PanelLineEdit) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        const QRect rect = option->rect;
        painter->fillRect(rect, option->palette.color(QPalette::Button));
        painter->setPen(option->palette.color(QPalette::Midlight));
        painter->drawLine(rect.bottomLeft(), rect.bottomRight());
        painter->drawLine(rect.topRight(), rect.bottomRight());
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control == CC_ComboBox && combo != nullptr) {
        QStyleOptionComboBox field = *combo;
        if (combo->editable) {
            field.palette.setColor(QPalette::Button, combo->palette.color(QPalette::Base));
            field.state &= ~State_Sunken;
        }
        field.state &= ~State_On;
        DrawButton(*painter, field);
        DrawArrow(*painter, subControlRect(control, option, SC_ComboBoxArrow, widget), *option);
    } else if (control == CC_GroupBox && group != nullptr) {
        DrawGroup(*painter, *group);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect Style::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                            SubControl part, const QWidget* widget) const {
    if (control == CC_GroupBox) {
        return option->rect;  // nothing is laid out inside
    }
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (combo == nullptr) {
        return rect;
    }
    // Qt indents a text that cannot be edited by another pixel.
    const int inset = combo->editable ? TextInset + 1 : TextInset;
    const int arrowWidth = option->rect.height() * 6 / 7;
    const int arrowLeft = option->rect.right() - arrowWidth;
    switch (part) {
        case SC_ComboBoxArrow:
            return {arrowLeft, option->rect.y(), arrowWidth, option->rect.height()};
        case SC_ComboBoxEditField:
            return rect.adjusted(inset, 0, arrowLeft - rect.right(), 0);
        default:
            return rect;
    }
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option,
                            const QWidget* widget) const {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents && !IsInCombo(widget)
               ? rect.adjusted(TextInset, 0, -TextInset, 0)
               : rect;
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option,
                       const QWidget* widget) const {
    switch (metric) {
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_FocusFrameHMargin:  // to the left and right of the text of rows
            // The file dialogs measure their columns without it.
            return widget != nullptr && widget->window()->inherits("QFileDialog") ? 2 : 6;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return FontHeight(widget) - 1;
        case PM_CheckBoxLabelSpacing:
            return (FontHeight(widget) + 1) / 2;
        case PM_HeaderMargin:
            return 7;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* returned) const {
    switch (hint) {
        case SH_ComboBox_Popup:  // open the list below its field
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_UnderlineShortcut:
            return underlinesAccessKeys ? 1 : 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

}  // namespace desktop
