#include "platform/memory/MemoryToolkit.h"
#include "platform/toolkit/Menus.h"
#include "platform/toolkit/Reading.h"
#include "tests/platform/toolkit/conformance/Conformance.h"

#include <algorithm>

namespace ostrelum::conformance {
namespace {

using namespace memory_platform;

/// The fields that each kind of control has.
struct LookOf {
    Look operator()(const Label& label) const
    {
        Look look{.text = label.Caption, .colour = label.ForeColor, .font = label.Font};
        look.alignment = label.Alignment;
        look.wraps = label.WordWrap;
        look.tooltip = label.ToolTipText;
        look.cursor = label.MousePointer;
        return look;
    }
    Look operator()(const PictureBox& box) const
    {
        return {.tooltip = box.ToolTipText, .cursor = box.MousePointer};
    }
    Look operator()(const CommandButton& button) const
    {
        return {.text = button.Caption, .enabled = button.Enabled, .font = button.Font};
    }
    Look operator()(const ScrollBar& bar) const
    {
        return {.enabled = bar.Enabled, .min = bar.Min, .max = bar.Max, .value = bar.Value};
    }
    Look operator()(const CheckBox& box) const
    {
        Look look{.text = box.Caption, .enabled = box.Enabled, .font = box.Font};
        look.value = box.Value;
        return look;
    }
    Look operator()(const ComboBox& box) const
    {
        Look look{.enabled = box.Enabled, .font = box.Font, .value = box.ListIndex};
        look.list = box.List;
        return look;
    }
    Look operator()(const auto&) const { return {}; }
};

bool shows(const MemoryWindow& window, const Form& form, int control)
{
    const bool itself = std::visit(
        [](const auto& shown) {
            if constexpr (requires { shown.Visible; })
                return shown.Visible;
            else
                return false;
        },
        window.on_show(control));
    const int holder = entry_at(form, control).container;
    return itself && (holder == form_itself || shows(window, form, holder));
}

class MemoryDriver : public Driver {
public:
    Toolkit& toolkit() override { return toolkit_; }

    void button_down(Form& form, Point at, int button, int shift) override
    {
        held_ |= button;
        if (const auto window = toolkit_.window_of(form))
            window->button_down(at, button, shift);
    }
    void button_up(Form& form, Point at, int button, int shift) override
    {
        held_ &= ~button;
        if (const auto window = toolkit_.window_of(form))
            window->button_up(at, button, shift);
    }
    void move_mouse(Form& form, Point at) override
    {
        toolkit_.window_of(form)->move_mouse(at, held_);
    }
    void press_key(Form& form, Key key, int shift) override
    {
        toolkit_.window_of(form)->press_key(key, shift);
    }
    void drag(Form& form, const ScrollBar& bar, const std::vector<int>& values) override
    {
        toolkit_.window_of(form)->drag(place_of(form, form.entry_of(&bar)), values);
    }
    void close(Form& form) override { toolkit_.close(form); }
    void choose(Form&, const MenuItem* entry) override { toolkit_.choose(entry); }

    bool is_on_screen(const Form& form) const override
    {
        return std::ranges::find(toolkit_.shown, &form) != toolkit_.shown.end();
    }
    std::string title(const Form& form) const override { return frame(form).Caption; }
    Point size(const Form& form) const override
    {
        return {frame(form).ClientWidth, frame(form).ClientHeight};
    }
    int opacity(const Form& form) const override { return toolkit_.opacity(form); }
    Look look(const Form& form, int control) const override;
    Spoken spoken(const Form& form, int control) const override
    {
        auto* const* label = std::get_if<Label*>(&entry_at(form, control).control);
        return {reading_of(form, control), label && (*label)->Chosen};
    }
    int focused(const Form& form) const override { return toolkit_.window_of(form)->focused(); }
    int marked(const Form& form) const override { return toolkit_.window_of(form)->marked(); }
    std::vector<MenuEntry> menu() const override;
    std::optional<Point> menu_place(const Form&) const override { return toolkit_.menu->at; }
    MouseCursor screen_cursor() const override { return toolkit_.cursors.back(); }

    int now() const override { return now_; }
    void let_time_pass(int milliseconds) override
    {
        now_ += milliseconds;
        toolkit_.advance(milliseconds);
    }
    void stay_busy(int milliseconds) override { toolkit_.stay_busy(milliseconds); }
    bool wait_for(const std::function<bool()>& condition) override
    {
        for (int passed = 0; passed < 5000 && !condition(); ++passed)
            let_time_pass(1);
        return condition();
    }
    void show_modal(Form& form) override
    {
        toolkit_.modal = [this](Form& shown) { wait_for([&] { return !is_on_screen(shown); }); };
        toolkit_.ShowModal(form);
    }

private:
    const FormFrame& frame(const Form& form) const { return toolkit_.window_of(form)->frame(); }

    MemoryToolkit toolkit_;
    int held_ = 0;
    int now_ = 0;
};

/// Of the copies that are on show, not of the form's own data.
Look MemoryDriver::look(const Form& form, int control) const
{
    const auto window = toolkit_.window_of(form);
    Control shown = window->on_show(control);
    Look look = std::visit(LookOf{}, shown);
    const ControlPointer pointer = std::visit([](auto& it) { return ControlPointer(&it); }, shown);
    look.area = area_in_container({.control = pointer}).value_or(Area{});
    look.visible = shows(*window, form, control);
    return look;
}

std::vector<MenuEntry> MemoryDriver::menu() const
{
    std::vector<MenuEntry> entries;
    if (!toolkit_.menu)
        return entries;
    const Form& form = *toolkit_.menu->form;
    for (const int place : entries_of(form, *toolkit_.menu->menu)) {
        const auto* item = std::get<MenuItem*>(entry_at(form, place).control);
        entries.push_back(
            {item->Caption, item->Enabled, item == toolkit_.menu->bold, item->Shortcut});
    }
    return entries;
}

std::unique_ptr<Driver> make_memory_driver()
{
    return std::make_unique<MemoryDriver>();
}

INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance,
                         testing::Values(BackEnd{"Memory", make_memory_driver}));

} // namespace
} // namespace ostrelum::conformance
