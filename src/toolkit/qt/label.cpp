#include <QLabel>
#include <QMouseEvent>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/look.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// Height of a plain line of text in dialog units.
constexpr double lineHeight = 8;
constexpr double largestTitle = 2.4;
constexpr QColor smallTitleColour(0xE9, 0xCF, 0xC4);
/// How far the quiet colour goes towards the background; leaves a contrast above 4.5 to 1.
constexpr double quietShare = 0.28;

class LabelWidget final : public QLabel, public NativeControl {
  public:
    LabelWidget(toolkit::Label& label, QWidget& parent) : QLabel(&parent), label_(label) {
        setTextFormat(Qt::PlainText);
        Dress();
        Apply(Property::Caption, -1);
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int) override {
        if (property == Property::Caption) {
            const QString shown = Shown(label_.Caption());
            setText(buddy() == nullptr ? shown : WithoutAccessKeys(shown));
        }
    }

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool inside = rect().contains(event->position().toPoint());
        if (label_.Has(toolkit::Link) && event->button() == Qt::LeftButton && inside) {
            label_.UserClicks();
        }
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return) {
            label_.UserClicks();
        } else {
            event->ignore();
        }
    }

  private:
    void Dress() {
        if (label_.Has(toolkit::Title)) {
            // The place tells how large it may be.
            DressText(std::min(largestTitle, label_.Spec().place.height / lineHeight), Qt::white);
        } else if (label_.Has(toolkit::Small)) {
            DressText(0.92, smallTitleColour);
            setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        if (label_.Has(toolkit::Bold) || label_.Has(toolkit::Title)) {
            QFont bold = font();
            bold.setBold(true);
            setFont(bold);
        }
        if (label_.Has(toolkit::Quiet)) {
            const QColor strong = palette().color(QPalette::WindowText);
            SetColour(Blend(strong, palette().color(QPalette::Window), quietShare));
        }
        if (label_.Has(toolkit::Sunken)) {
            setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
            setWordWrap(true);
            setAlignment(Qt::AlignLeft | Qt::AlignTop);
            setMargin(5);
        }
        if (label_.Has(toolkit::Link)) {
            DressLink();
        }
    }

    void DressText(double size, const QColor& colour) {
        setFont(Scaled(font(), size));
        SetColour(colour);
    }

    void DressLink() {
        QFont underlined = font();
        underlined.setUnderline(true);
        setFont(underlined);
        SetColour(palette().color(QPalette::Link));
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
    }

    void SetColour(const QColor& colour) {
        QPalette changed = palette();
        changed.setColor(QPalette::WindowText, colour);
        setPalette(changed);
    }

    toolkit::Label& label_;
};

}  // namespace

NativeControl* MakeLabel(toolkit::Label& label, QWidget& parent) {
    return new LabelWidget(label, parent);
}

}  // namespace desktop
