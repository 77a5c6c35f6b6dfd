#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <QStylePainter>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/look.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

constexpr QColor SmallTitleColor(0xE9, 0xCF, 0xC4);
/// Share of the background in the quiet color; the contrast stays above 4.5:1.
constexpr double QuietShare = 0.28;

class LabelWidget final : public QLabel, public NativeControl {
  public:
    LabelWidget(toolkit::Label& label, QWidget& parent) : QLabel(&parent), label_(label) {
        setTextFormat(Qt::PlainText);
        ApplyFlags();
        Apply(Property::Caption, -1);
    }

    QWidget& Widget() override { return *this; }
    toolkit::Label* Link() override { return label_.Has(toolkit::Link) ? &label_ : nullptr; }

    void Apply(Property property, int) override {
        if (property == Property::Caption) {
            const QString shown = DisplayText(label_.Caption());
            const toolkit::Control* named = label_.Named();
            // A label with a buddy takes "&" for an access key.
            setText(named != nullptr ? MarkAccessKey(shown, named->Access()) : shown);
        }
    }

  protected:
    bool event(QEvent* event) override {
        if (Link() != nullptr && event->type() == QEvent::Shortcut) {
            setFocus(Qt::ShortcutFocusReason);
            return true;
        }
        return QLabel::event(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool inside = rect().contains(event->position().toPoint());
        if (Link() != nullptr && event->button() == Qt::LeftButton && inside) {
            label_.UserClicks();
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                             event->key() == Qt::Key_Enter;
        if (Link() != nullptr && presses) {
            label_.UserClicks();
        } else {
            event->ignore();
        }
    }

    void paintEvent(QPaintEvent* event) override {
        if (label_.Has(toolkit::Title)) {
            QPainter painter(this);
            DrawWordmark(painter, rect());
        } else {
            QLabel::paintEvent(event);
        }
        if (hasFocus()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
        }
    }

  private:
    void ApplyFlags() {
        if (label_.Has(toolkit::Small)) {
            SetColor(SmallTitleColor);
            setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        if (label_.Has(toolkit::Bold)) {
            QFont bold = font();
            bold.setBold(true);
            setFont(bold);
        }
        if (label_.Has(toolkit::Quiet)) {
            const QColor strong = palette().color(QPalette::WindowText);
            const double share = HasStrongContrast(palette()) ? 0 : QuietShare;
            SetColor(Blend(strong, palette().color(QPalette::Window), share));
        }
        if (label_.Has(toolkit::Sunken)) {
            setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            setWordWrap(true);
            setAlignment(Qt::AlignLeft | Qt::AlignTop);
            setMargin(5);
        }
        if (Link() != nullptr) {
            SetLinkLook();
        }
    }

    void SetLinkLook() {
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
        SetColor(LinkColor(palette()));
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
        grabShortcut(QKeySequence(Qt::ALT | Qt::Key(label_.Access())));
    }

    void SetColor(const QColor& color) {
        QPalette changed = palette();
        changed.setColor(QPalette::WindowText, color);
        setPalette(changed);
    }

    toolkit::Label& label_;
};

}  // namespace

NativeControl* MakeLabel(toolkit::Label& label, QWidget& parent) {
    return new LabelWidget(label, parent);
}

}  // namespace desktop
