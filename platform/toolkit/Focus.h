#pragma once

#include "platform/toolkit/ControlTree.h"
#include "platform/toolkit/Keys.h"

/// The way of the focus over a form. The form itself has the focus until the user moves it, so that
/// no control starts marked.
namespace ostrelum::inline toolkit {

/// Whether a key can press a control as the mouse would, a label or a picture; the others know keys
/// themselves.
bool is_pressable(const Form& form, int control);

/// Whether the keyboard reaches a control as it stands.
bool takes_focus(const Form& form, int control);

/// Where Tab, or Shift+Tab, moves the focus: through the controls in their order, behind them to
/// the first of the rows, and round. The form itself where no control takes the focus.
int next_by_tab(const Form& form, int from, bool forward);

/// Where an arrow key, Home or End moves the focus: among the controls of one array. Right goes
/// from a tab to the first row of its page, Left back to the tab that is chosen; from the form
/// itself the other keys go to a row, too. The form itself where there is no such control.
int next_by_arrow(const Form& form, int from, Key key);

/// Where the focus moves when the program changed the form: from a control that is hidden, or that
/// lost its TabStop, it falls back to the form itself, from one that is disabled to the next.
int focus_after_change(const Form& form, int focused);

} // namespace ostrelum::inline toolkit
