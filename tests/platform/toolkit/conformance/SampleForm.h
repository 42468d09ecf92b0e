#pragma once

#include "platform/toolkit/Form.h"

#include <map>

/// A small form with every kind of control, which notes what its handlers are called with.
namespace ostrelum::conformance {

struct SampleForm : Form {
    SampleForm();

    ControlArray<Label, 3> Row;
    PictureBox Column;
    ControlArray<Label, 3> Menu;
    PictureBox Bar;
    Label Silent;
    Label Free;
    Line Rule;
    CommandButton Ok;
    CommandButton No;
    ScrollBar Slide;
    CheckBox Tick;
    ComboBox Pick;
    PopupMenu Pops;
    MenuItem First;
    MenuItem Gap;
    MenuItem Last;
    Timer Clock;
};

using Calls = std::vector<std::string>;

/// What the handlers were called with, in order: "Menu_MouseDown(2) 1 0 5,6".
inline Calls calls;
/// What was called since the last time.
inline Calls take_calls()
{
    return std::exchange(calls, {});
}
/// What a handler does besides, by its name. With "refuse" among them the form refuses to close.
inline std::map<std::string, std::function<void()>> acts;

/// A picture of one colour, in which only the first pixel is `corner`.
Bitmap plain_bitmap(int width, int height, Colour colour, Colour corner);

} // namespace ostrelum::conformance
