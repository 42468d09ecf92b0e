#pragma once

namespace ostrelum {

/// Runs the program's start: a second instance ends here; else the main window is loaded and shown.
/// The platform must be filled.
void start_program();

} // namespace ostrelum
