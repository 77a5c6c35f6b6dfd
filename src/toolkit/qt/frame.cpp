#include <QGroupBox>
#include <QPainter>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/text.h"

namespace desktop {
namespace {

/// Drawn below the controls that it surrounds; they are not its children.
class FrameWidget final : public QGroupBox, public NativeControl {
  public:
    FrameWidget(toolkit::Control& frame, QWidget& parent) : QGroupBox(&parent), frame_(frame) {
        QFont bold = font();
        bold.setBold(true);
        setFont(bold);
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

/// A picture as wide as its window is stretched; any other keeps its aspect ratio.
class PictureWidget final : public QWidget, public NativeControl {
  public:
    PictureWidget(toolkit::Control& picture, QWidget& parent)
        : QWidget(&parent), name_(picture.Spec().picture) {}

    QWidget& Widget() override { return *this; }
    void Apply(Property, int) override {}

  protected:
    void paintEvent(QPaintEvent*) override {
        if (pixmap_.isNull()) {
            Load();
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(Target(), pixmap_);
    }

  private:
    /// Loads the picture in a resolution that is high enough for its place.
    void Load() {
        pixmap_ = LoadPicture(name_, 1, palette());
        const double stretch = height() * devicePixelRatioF() / std::max(1, pixmap_.height());
        if (stretch > 1) {
            pixmap_ = LoadPicture(name_, stretch, palette());
        }
    }

    QRect Target() const {
        if (width() == parentWidget()->width()) {
            return rect();
        }
        QRect target({}, pixmap_.size().scaled(size(), Qt::KeepAspectRatio));
        target.moveCenter(rect().center());
        return target;
    }

    std::string_view name_;
    QPixmap pixmap_;
};

}  // namespace

NativeControl* MakeFrame(toolkit::Control& frame, QWidget& parent) {
    return new FrameWidget(frame, parent);
}

NativeControl* MakeDivider(toolkit::Control&, QWidget& parent) {
    return new DividerWidget(&parent);
}

NativeControl* MakePicture(toolkit::Control& picture, QWidget& parent) {
    return new PictureWidget(picture, parent);
}

}  // namespace desktop
