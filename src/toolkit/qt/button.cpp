#include <QIcon>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOption>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/look.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

class ButtonWidget : public QPushButton, public NativeControl {
  public:
    ButtonWidget(toolkit::Button& button, QWidget& parent) : QPushButton(&parent), button_(button) {
        setAutoDefault(false);
        setDefault(button.Has(toolkit::Default));
        ButtonWidget::Apply(Property::Caption, -1);
        connect(this, &QPushButton::clicked, this, [this] { button_.UserClicks(); });
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int) override {
        if (property == Property::Caption) {
            const toolkit::ControlSpec& spec = button_.Spec();
            const bool isPicture = !spec.picture.empty();
            const QString caption =
                isPicture ? Decode(spec.accessibleName) : DisplayText(button_.Caption());
            setText(MarkAccessKey(caption, button_.Access()));
        }
    }

  private:
    toolkit::Button& button_;
};

/// A button with a picture, whose size follows the font. Its text is not shown: it is its
/// accessible name, and has its access key.
class PictureButtonWidget final : public ButtonWidget {
  public:
    PictureButtonWidget(toolkit::Button& button, QWidget& parent)
        : ButtonWidget(button, parent), name_(button.Spec().picture) {
        const int side = fontMetrics().height() * 8 / 7;
        setIconSize(QSize(side, side));
        QIcon icon;
        const QColor color = HasStrongContrast(palette()) ? palette().color(QPalette::ButtonText)
                             : IsDark(palette())          ? QColor(0xFF, 0x8B, 0x5C)
                                                          : Accent;
        icon.addPixmap(Draw(color), QIcon::Normal);
        icon.addPixmap(Draw(Blend(color, palette().color(QPalette::Window), 0.6)), QIcon::Disabled);
        setIcon(icon);
    }

  protected:
    void initStyleOption(QStyleOptionButton* option) const override {
        ButtonWidget::initStyleOption(option);
        option->text.clear();
    }

  private:
    QPixmap Draw(const QColor& color) const {
        return OutlinePicture(name_, iconSize().width(), devicePixelRatioF(), color);
    }

    std::string_view name_;
};

/// The button in the color of the program, the same on every desktop but those of strong contrast.
class AccentButtonWidget final : public ButtonWidget {
  public:
    AccentButtonWidget(toolkit::Button& button, QWidget& parent) : ButtonWidget(button, parent) {
        setAttribute(Qt::WA_Hover);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionButton option;
        initStyleOption(&option);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor color = TextOnAccent(palette());
        DrawBox(painter, Fill(option), AccentOf(palette()).darker(128), 0.5);
        if (hasFocus()) {
            DrawBox(painter, Qt::transparent, color, 3.5);
        }
        painter.setPen(isEnabled() ? color : Blend(color, Fill(option), 0.4));
        const bool underlined =
            style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
        SpaceForBold(painter);
        DrawBold(painter, rect(),
                 Qt::AlignCenter | (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                 text());
    }

  private:
    void DrawBox(QPainter& painter, const QColor& fill, const QColor& outline, double inset) {
        painter.setPen(QPen(outline, 1));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), 4, 4);
    }

    static QColor Fill(const QStyleOptionButton& option) {
        const QColor accent = AccentOf(option.palette);
        if (!option.state.testFlag(QStyle::State_Enabled)) {
            return Blend(accent, option.palette.color(QPalette::Window), 0.5);
        }
        if (option.state.testFlag(QStyle::State_Sunken)) {
            return accent.darker(125);
        }
        return option.state.testFlag(QStyle::State_MouseOver) ? accent.lighter(112) : accent;
    }
};

}  // namespace

NativeControl* MakeButton(toolkit::Button& button, QWidget& parent) {
    if (!button.Spec().picture.empty()) {
        return new PictureButtonWidget(button, parent);
    }
    if (button.Has(toolkit::Accent)) {
        return new AccentButtonWidget(button, parent);
    }
    return new ButtonWidget(button, parent);
}

}  // namespace desktop
