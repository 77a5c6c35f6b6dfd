#include <QPainter>

#include "toolkit/qt/controls.h"
#include "toolkit/qt/pictures.h"

namespace desktop {
namespace {

/// The title band, the mark on it, or nothing for a picture without a name.
class PictureWidget final : public QWidget, public NativeControl {
  public:
    PictureWidget(toolkit::Control& picture, QWidget& parent)
        : QWidget(&parent), name_(picture.Spec().picture) {}

    QWidget& Widget() override { return *this; }
    void Apply(Property, int) override {}

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (name_ == "title") {
            DrawBand(painter, rect());
        } else if (name_ == "mark") {
            DrawMark(painter, rect());
        }
    }

  private:
    std::string_view name_;
};

}  // namespace

NativeControl* MakePicture(toolkit::Control& picture, QWidget& parent) {
    return new PictureWidget(picture, parent);
}

}  // namespace desktop
