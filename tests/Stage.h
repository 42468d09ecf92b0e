#pragma once

#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "frame/PictureForm.h"
#include "tests/MemoryProgram.h"

#include <gtest/gtest.h>

#include <string_view>

namespace ostrelum {

/// The program on the memory back end, and the user's hands on it.
class Stage : public ::testing::Test, public MemoryProgram {
protected:
    static void press(std::string_view control, int index = 0, int button = left_button, int x = 0,
                      int y = 0)
    {
        F1.raise(control,
                 {.kind = EventKind::MouseDown, .index = index, .button = button, .x = x, .y = y});
    }
    static void click(std::string_view control) { F1.raise(control, {.kind = EventKind::Click}); }
    static void tick(std::string_view timer) { F1.raise(timer, {.kind = EventKind::Timer}); }
};

} // namespace ostrelum
