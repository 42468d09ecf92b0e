#pragma once

#include "platform/toolkit/Form.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ostrelum::inline toolkit {

struct TextSize {
    int width = 0;
    int height = 0;
    bool operator==(const TextSize&) const = default;
};

/// Index of the extended window style.
inline constexpr int extended_style_index = -20;
/// Extended style of a window that has an opacity of its own.
inline constexpr std::int32_t layered_style = 0x80000;
/// The window's opacity is its alpha; the colour key is unused.
inline constexpr std::uint32_t alpha_flag = 2;

/// The window toolkit. After each event that it raises it shows what the event changed in the
/// form's data; in the middle of an event only Refresh does.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    virtual void InitCommonControls() = 0;

    /// Size of a text on one line, in pixels.
    virtual TextSize text_size(const std::string& text, const FontSpec& font) const = 0;

    /// Makes the form's window if there is none and brings it up, together with its frame, in the
    /// centre of the screen.
    virtual void Show(Form& form) = 0;
    /// Shows the form over all others, which take no input meanwhile, and returns when it is
    /// hidden.
    virtual void ShowModal(Form& form) = 0;
    /// Takes the form's window away.
    virtual void Hide(Form& form) = 0;
    /// Shows what changed and paints it before it returns.
    virtual void Refresh(Form& form) = 0;
    /// Runs the events that are pending, once.
    virtual void DoEvents() = 0;

    /// Pops up a menu of the form at a point of its client area, or at the mouse cursor, and raises
    /// Click of the entry that the user chooses. `bold` is the default entry, if any.
    virtual void popup(Form& form, PopupMenu& menu, std::optional<Point> at,
                       const MenuItem* bold) = 0;

    /// Gives the focus to a control of the form when what the running event changed is shown, if
    /// the control then takes it.
    virtual void SetFocus(Form& form, const void* control) = 0;
    /// Lets a screen reader say a text, once and at once.
    virtual void announce(Form& form, const std::string& text) = 0;

    /// The mouse cursor of the whole screen; Default gives each control its own back.
    virtual void set_screen_cursor(MouseCursor cursor) = 0;

    virtual std::int32_t GetWindowLongA(const Form& form, int index) = 0;
    virtual void SetWindowLongA(Form& form, int index, std::int32_t value) = 0;
    virtual void SetLayeredWindowAttributes(Form& form, Colour key, std::uint8_t alpha,
                                            std::uint32_t flags) = 0;

    /// Waits for events and raises them until the process ends; returns its exit code.
    virtual int run() = 0;
    /// The process ends right behind this call, without unwinding: hands over to the desktop what
    /// it would miss then, such as the clipboard's text. No other call may follow.
    virtual void prepare_end() = 0;
};

/// Asks a form to close: hides it unless its Form_Unload refuses. True if it was hidden.
bool Unload(Toolkit& toolkit, Form& form);

/// A label with its text on one line may be as large as its text.
inline bool sizes_itself(const Label& label)
{
    return label.AutoSize && !label.WordWrap;
}

/// Gives a label that sizes itself the size of its text.
void fit(const Toolkit& toolkit, Label& label);

} // namespace ostrelum::inline toolkit
