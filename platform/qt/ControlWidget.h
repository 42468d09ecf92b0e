#pragma once

#include "platform/qt/Cursors.h"
#include "platform/qt/FormScale.h"
#include "platform/toolkit/ControlBinding.h"
#include "platform/toolkit/MouseInput.h"
#include "platform/toolkit/Toolkit.h"

#include <QWidget>

#include <memory>

namespace ostrelum::qt_platform {

/// What the parts of a form's window share.
struct WindowContext {
    const Toolkit& toolkit;
    const Cursors& cursors;
    FormScale scale;
    WindowEvents& events;
    MouseInput& mouse;
};

/// A control in its window.
struct ControlWidget {
    /// Nothing for a menu and its entries.
    std::unique_ptr<ControlBinding> binding;
    /// nullptr for what has none.
    QWidget* widget = nullptr;
};

/// The widget of the control at a place of the form, as a child of `parent`.
ControlWidget make_control_widget(int place, QWidget& parent, const WindowContext& context);

/// Puts a widget where its control says.
inline void set_place(QWidget& widget, const auto& control, const FormScale& scale)
{
    widget.setGeometry(
        scale.to_window(Area{control.Left, control.Top, control.Width, control.Height}));
}

} // namespace ostrelum::qt_platform
