#include <QGroupBox>
#include <QPainter>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// The parent of the controls that it surrounds.
class FrameWidget final : public QGroupBox, public NativeControl {
  public:
    FrameWidget(toolkit::Control& frame, QWidget& parent) : QGroupBox(&parent), frame_(frame) {
        Apply(Property::Caption, -1);
    }

    QWidget& Widget() override { return *this; }

    void Apply(Property property, int) override {
        if (property == Property::Caption) {
            setTitle(EscapeAmpersands(DisplayText(frame_.Caption())));
        }
    }

  private:
    toolkit::Control& frame_;
};

class DividerWidget final : public QWidget, public NativeControl {
  public:
    using QWidget::QWidget;
    QWidget& Widget() override { return *this; }
    void Apply(Property, int) override {}

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(0, height() / 2, width(), 1, palette().color(QPalette::Midlight));
    }
};

}  // namespace

NativeControl* MakeFrame(toolkit::Control& frame, QWidget& parent) {
    return new FrameWidget(frame, parent);
}

NativeControl* MakeDivider(toolkit::Control&, QWidget& parent) {
    return new DividerWidget(&parent);
}

}  // namespace desktop
