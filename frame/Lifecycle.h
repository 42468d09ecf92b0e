#pragma once

namespace ostrelum::inline frame {

/// Loads the main window and opens its first page without showing it. The platform must be filled.
void load_program();

/// The same, but for the first page, for whoever asks for another one at once.
void load_without_page();

/// Runs the program's start: a second instance ends here; else the main window is loaded and shown.
/// The platform must be filled.
void start_program();

} // namespace ostrelum::inline frame
