#include "platform/windows/toolkit/InputControls.h"

#include "platform/windows/services/Wide.h"
#include "platform/windows/toolkit/Captions.h"

#include <commctrl.h>

namespace ostrelum::windows_platform {
namespace {

/// Posted to a list once its choice has settled: the system may tell of one choice twice.
constexpr UINT choice_settled = WM_USER + 0x400;

} // namespace

ButtonWindow::ButtonWindow(CommandButton& button, int control, FormHost& host, WindowEvents& events)
    : CommandButtonBinding(button, control, events),
      ControlWindow(control, host, WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP)
{
}

void ButtonWindow::apply()
{
    if (moved())
        set_place(place_in_holder(control_));
    if (changed(&CommandButton::Caption))
        set_text(without_mnemonics(control_.Caption));
    if (changed(&CommandButton::Font))
        set_font(control_.Font);
    if (changed(&CommandButton::Default))
        SendMessageW(handle(), BM_SETSTYLE, control_.Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON,
                     TRUE);
    if (changed(&CommandButton::Enabled))
        set_enabled(control_.Enabled);
    if (changed(&CommandButton::Visible))
        set_visible(control_.Visible);
}

void ButtonWindow::told(int code)
{
    if (code == BN_CLICKED)
        user_clicks();
}

TickWindow::TickWindow(CheckBox& box, int control, FormHost& host, WindowEvents& events)
    : CheckBoxBinding(box, control, events),
      ControlWindow(control, host, WC_BUTTONW, BS_AUTOCHECKBOX | WS_TABSTOP)
{
}

void TickWindow::apply()
{
    if (moved())
        set_place(place_in_holder(control_));
    if (changed(&CheckBox::Caption))
        set_text(without_mnemonics(control_.Caption));
    if (changed(&CheckBox::Font))
        set_font(control_.Font);
    if (changed(&CheckBox::Value))
        SendMessageW(handle(), BM_SETCHECK, control_.Value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
    if (changed(&CheckBox::Enabled))
        set_enabled(control_.Enabled);
    if (changed(&CheckBox::Visible))
        set_visible(control_.Visible);
}

void TickWindow::told(int code)
{
    if (code == BN_CLICKED)
        user_ticks(SendMessageW(handle(), BM_GETCHECK, 0, 0) == BST_CHECKED);
}

ListWindow::ListWindow(ComboBox& box, int control, FormHost& host, WindowEvents& events)
    : ComboBoxBinding(box, control, events),
      ControlWindow(control, host, WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP)
{
}

void ListWindow::apply()
{
    if (changed(&ComboBox::Font))
        set_font(control_.Font);
    if (moved() || changed(&ComboBox::Font, &ComboBox::List))
        place_list();
    if (changed(&ComboBox::List)) {
        SendMessageW(handle(), CB_RESETCONTENT, 0, 0);
        for (const std::string& text : control_.List)
            SendMessageW(handle(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(text).c_str()));
    }
    if (changed(&ComboBox::List, &ComboBox::ListIndex))
        SendMessageW(handle(), CB_SETCURSEL, static_cast<WPARAM>(control_.ListIndex), 0);
    if (changed(&ComboBox::Enabled))
        set_enabled(control_.Enabled);
    if (changed(&ComboBox::Visible))
        set_visible(control_.Visible);
}

/// The window's height is that of the list when it is open. The box itself is as high as the system
/// makes it for the font, and lies in the middle of its place.
void ListWindow::place_list()
{
    const Area area = place_in_holder(control_);
    set_place({area.left, area.top, area.width,
               area.height * (2 + static_cast<int>(control_.List.size()))});
    RECT box{};
    GetWindowRect(handle(), &box);
    const int spare = host_.scale().to_screen(area.height) - height_of(box);
    POINT at{box.left, box.top};
    ScreenToClient(GetParent(handle()), &at);
    SetWindowPos(handle(), nullptr, at.x, at.y + spare / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ListWindow::wants(Key key) const
{
    if (SendMessageW(handle(), CB_GETDROPPEDSTATE, 0, 0) != 0)
        return key != Key::Tab;
    return moves_value(key);
}

void ListWindow::told(int code)
{
    const bool open = SendMessageW(handle(), CB_GETDROPPEDSTATE, 0, 0) != 0;
    const bool chosen = code == CBN_SELENDOK || (code == CBN_SELCHANGE && !open);
    if (chosen && !std::exchange(choice_is_told_, true))
        PostMessageW(handle(), choice_settled, 0, 0);
}

LRESULT ListWindow::handle_message(const Message& message)
{
    if (message.number != choice_settled)
        return by_default(message);
    choice_is_told_ = false;
    user_chooses(static_cast<int>(SendMessageW(handle(), CB_GETCURSEL, 0, 0)));
    return 0;
}

} // namespace ostrelum::windows_platform
