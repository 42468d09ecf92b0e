#pragma once

#include <QStringList>

#include <string>

namespace ostrelum::qt_platform {

/// The file filters of a dialog from pairs of a label and a pattern, each ended by a NUL character:
/// "Text" and "*.txt;*.log" become "Text (*.txt *.log)". A label without a pattern is left out.
QStringList name_filters(const std::string& pairs);

} // namespace ostrelum::qt_platform
