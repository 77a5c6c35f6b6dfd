// BUTTON as a group box.
#include "toolkit/win32/controls.h"

namespace desktop {
namespace {

class NativeFrame : public NativeControl {
  public:
    NativeFrame(NativeWindow& parent, toolkit::Control& frame)
        // Transparent, because a group box draws only its edge.
        : NativeControl(
              parent, frame,
              {WC_BUTTONW, BS_GROUPBOX | WS_CLIPSIBLINGS, WS_EX_TRANSPARENT, Face::Bold}) {}

  protected:
    std::wstring CaptionText() const override { return EscapeAmpersands(GetControl().Caption()); }
};

}  // namespace

std::unique_ptr<NativeControl> MakeFrame(NativeWindow& parent, toolkit::Control& frame) {
    return std::make_unique<NativeFrame>(parent, frame);
}

}  // namespace desktop
