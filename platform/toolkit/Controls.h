#pragma once

#include "platform/toolkit/Colour.h"
#include "platform/toolkit/Picture.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Controls as plain data. Places and sizes are pixels of the box or the client area that holds the
/// control. The program's logic assigns fields; a back end compares each control with what it shows
/// and brings what differs to the screen.
namespace ostrelum::inline toolkit {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct FontSpec {
    std::string Name = "Tahoma";
    /// In points, 96 to the inch on the screen as the window's pixels count: 9.75 points are 13
    /// pixels.
    double Size = 8.25;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool operator==(const FontSpec&) const = default;
};

enum class MouseCursor { Default, Arrow, Hourglass, Hand };
enum class Align { Left, Right, Centre };
/// What a label is that the keyboard reaches: something to press, one of several pages, an address
/// to open, or a line of a page to read and copy.
enum class LabelRole { Button, Tab, Link, Row };

struct Label {
    std::string Caption;
    int Left = 0;
    int Top = 0;
    /// Of a label that sizes itself, the size of its text: see fit().
    int Width = 0;
    int Height = 0;
    FontSpec Font;
    Colour ForeColor = 0;
    Align Alignment = Align::Left;
    bool AutoSize = true;
    bool WordWrap = false;
    std::string ToolTipText;
    MouseCursor MousePointer = MouseCursor::Default;
    bool Visible = true;
    /// The keyboard reaches it, a row only with a text; Enter or Space acts as a press of the left
    /// button.
    bool TabStop = false;
    LabelRole Role = LabelRole::Button;
    /// Of tabs: the one whose page is open.
    bool Chosen = false;
    /// Name of the label of the same index from which this one goes on: a screen reader reads both
    /// as one text.
    std::string_view Continues;
    /// A screen reader passes it over, since another control says the same.
    bool Silent = false;
    bool operator==(const Label&) const = default;
};

struct PictureBox {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    /// Without a value the box lets what lies under it show through.
    bool Transparent = false;
    Colour BackColor = white;
    /// The picture that belongs to the box.
    Picture Stored;
    /// What the box shows: the stored picture, or what was drawn over it.
    Picture Surface;
    std::string ToolTipText;
    /// What a screen reader calls the box; empty for decoration.
    std::string AccessibleName;
    MouseCursor MousePointer = MouseCursor::Default;
    bool Visible = true;
    bool TabStop = false;
    bool operator==(const PictureBox&) const = default;

    /// Gives the box a stored picture, which it then shows.
    void store(const Picture& picture) { Stored = Surface = picture; }
    /// Clears the drawing surface: the stored picture alone stays.
    void Cls() { Surface = Stored; }
};

struct Line {
    int X1 = 0;
    int Y1 = 0;
    int X2 = 0;
    int Y2 = 0;
    Colour BorderColor = 0;
    bool Visible = true;
    bool operator==(const Line&) const = default;
};

struct CommandButton {
    std::string Caption;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    FontSpec Font;
    /// Enter presses it while no other button has the focus.
    bool Default = false;
    /// Escape presses it.
    bool Cancel = false;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const CommandButton&) const = default;
};

/// A horizontal slider.
struct ScrollBar {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    int Min = 0;
    int Max = 0;
    int SmallChange = 1;
    /// Step of a click in the track.
    int LargeChange = 1;
    int Value = 0;
    std::string AccessibleName;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const ScrollBar&) const = default;
};

struct CheckBox {
    std::string Caption;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    FontSpec Font;
    /// 0 or 1.
    int Value = 0;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const CheckBox&) const = default;
};

/// A drop-down list without typing.
struct ComboBox {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    FontSpec Font;
    std::vector<std::string> List;
    /// Chosen entry, counted from 0; -1 for none.
    int ListIndex = -1;
    std::string AccessibleName;
    bool Enabled = true;
    bool Visible = true;
    bool operator==(const ComboBox&) const = default;
};

/// A menu that pops up; its entries are the MenuItems that it contains.
struct PopupMenu {
    bool operator==(const PopupMenu&) const = default;
};

struct MenuItem {
    /// "-" is a separator.
    std::string Caption;
    bool Enabled = true;
    /// The keys that do the same, as they stand beside the entry. The form itself hears them.
    std::string Shortcut;
    bool operator==(const MenuItem&) const = default;
};

struct Timer {
    /// Milliseconds; 1 asks for the fastest tick, which is one for each screen frame.
    int Interval = 1;
    bool Enabled = false;
    bool operator==(const Timer&) const = default;
};

/// What the fastest timer takes from tick to tick: a screen frame, in milliseconds.
inline constexpr int frame_time = 15;

/// Milliseconds from tick to tick; nothing for a timer that stands still.
inline std::optional<int> tick_interval(const Timer& timer)
{
    if (!timer.Enabled || timer.Interval <= 0)
        return std::nullopt;
    return std::max(timer.Interval, frame_time);
}

using Control = std::variant<Label, PictureBox, Line, CommandButton, ScrollBar, CheckBox, ComboBox,
                             PopupMenu, MenuItem, Timer>;
using ControlPointer = std::variant<Label*, PictureBox*, Line*, CommandButton*, ScrollBar*,
                                    CheckBox*, ComboBox*, PopupMenu*, MenuItem*, Timer*>;

} // namespace ostrelum::inline toolkit
