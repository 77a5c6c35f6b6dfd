// A control as a Qt widget.
#pragma once

#include <QWidget>

#include "toolkit/control.h"
#include "toolkit/desktop.h"

namespace desktop {

/// What the window asks of the widget of a control. The widget belongs to its parent.
class NativeControl {
  public:
    NativeControl() = default;
    NativeControl(const NativeControl&) = delete;
    NativeControl& operator=(const NativeControl&) = delete;
    virtual ~NativeControl() = default;

    virtual QWidget& Widget() = 0;
    /// The part of it over which the pointer moves.
    virtual QWidget& Surface() { return Widget(); }
    /// Draws an property that the kind has of its own: caption, text, state, selection, items.
    /// Reports nothing.
    virtual void Apply(Property property, int row) = 0;
};

/// Makes the widget of a control, with the content that the control has now.
NativeControl* MakeControl(toolkit::Control& control, QWidget& parent);

/// Draws any property.
void ApplyProperty(NativeControl& native, const toolkit::Control& control, Property property,
                   int row);

}  // namespace desktop
