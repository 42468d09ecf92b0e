#pragma once

#include "platform/toolkit/ControlTree.h"

/// What a screen reader is told of a form's controls.
namespace ostrelum::inline toolkit {

/// The name of a control; empty for what a reader passes over: decoration, labels without text, and
/// those that another one reads.
std::string reading_of(const Form& form, int control);

/// What a control covers of the client area together with the labels that it reads; of a row only
/// as far as no picture lies over it.
Area area_of_reading(const Form& form, int control);

} // namespace ostrelum::inline toolkit
