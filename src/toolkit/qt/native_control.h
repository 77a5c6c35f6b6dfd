// A control as a Qt widget.
#pragma once

#include <QWidget>

#include "toolkit/control.h"
#include "toolkit/desktop.h"

namespace desktop {

/// Connects a control with its widget. The parent widget owns the widget.
class NativeControl {
  public:
    NativeControl() = default;
    NativeControl(const NativeControl&) = delete;
    NativeControl& operator=(const NativeControl&) = delete;
    virtual ~NativeControl() = default;

    virtual QWidget& Widget() = 0;
    /// The part of it that receives mouse events.
    virtual QWidget& Surface() { return Widget(); }
    /// The label that it shows as a link; null for any other control.
    virtual toolkit::Label* Link() { return nullptr; }
    /// Updates the widget for a changed property that only this kind of control has. Raises no
    /// event.
    virtual void Apply(Property property, int row) = 0;
};

/// Creates the widget of a control, with the control's current state.
NativeControl* MakeControl(toolkit::Control& control, QWidget& parent);

/// Updates the widget for any changed property.
void ApplyProperty(NativeControl& native, const toolkit::Control& control, Property property,
                   int row);

}  // namespace desktop
