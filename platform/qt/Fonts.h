#pragma once

#include "platform/qt/FormScale.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Toolkit.h"

#include <QFont>

namespace ostrelum::qt_platform {

/// The font of a control, in the pixels of its window. Where the named family is not installed, one
/// of nearly the same width stands in.
QFont font_of(const FontSpec& spec, const FormScale& scale = {});

/// Pixels that a text takes as a label draws it: the ink of slanted letters that lean beyond their
/// own width is counted in.
TextSize measure(const QString& text, const QFont& font);

/// Pixels that the ink of a text's first letter leans out of the text on the left, 0 or more.
int left_lean(const QString& text, const QFont& font);

} // namespace ostrelum::qt_platform
