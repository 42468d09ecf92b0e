#pragma once

namespace ostrelum::qt_platform {

/// Teaches the toolkit what a screen reader is to see of the program's own widgets: a label's text
/// as its name, something to press where the keyboard can press, and no decoration.
void install_accessibility();

} // namespace ostrelum::qt_platform
