#include "platform/memory/MemoryToolkit.h"

#include "sources/Utf8.h"

namespace ostrelum::memory_platform {

TextSize MemoryToolkit::text_size(const std::string& text, const FontSpec&) const
{
    return {static_cast<int>(character_count(text)) * character_width, line_height};
}

std::shared_ptr<MemoryWindow> MemoryToolkit::window_of(const Form& form) const
{
    const auto window = windows_.find(&form);
    return window == windows_.end() ? nullptr : window->second;
}

void MemoryToolkit::sync_all()
{
    for (const auto& [form, window] : windows_)
        window->sync();
}

void MemoryToolkit::Show(Form& form)
{
    if (!windows_.contains(&form))
        windows_[&form] = std::make_shared<MemoryWindow>(form, dispatcher_, *this);
    std::erase(shown, &form);
    shown.push_back(&form);
    share_input();
    Refresh(form);
}

void MemoryToolkit::ShowModal(Form& form)
{
    modals_.push_back(&form);
    Show(form);
    if (modal)
        modal(form);
    Hide(form);
}

void MemoryToolkit::Hide(Form& form)
{
    std::erase(shown, &form);
    std::erase(modals_, &form);
    for (const ControlEntry& entry : form.controls) {
        if (auto* const* timer = std::get_if<Timer*>(&entry.control))
            waited_.erase(*timer);
    }
    styles_.forget(form);
    if (const auto window = windows_.extract(&form))
        window.mapped()->close();
    share_input();
}

/// A window under a modal one takes no input.
void MemoryToolkit::share_input()
{
    for (const auto& [form, window] : windows_)
        window->take_input(modals_.empty() || modals_.back() == form);
}

void MemoryToolkit::Refresh(Form& form)
{
    for (const ControlEntry& entry : form.controls) {
        if (auto* const* label = std::get_if<Label*>(&entry.control))
            fit(*this, **label);
    }
    dispatcher_.sync_all();
    ++refreshes[&form];
}

void MemoryToolkit::DoEvents()
{
    dispatcher_.sync_all();
    if (const auto events = std::exchange(pending, nullptr))
        events();
    const int owed = std::exchange(owed_, 0);
    for (Form* form : std::vector(shown))
        tick(*form, owed);
}

void MemoryToolkit::popup(Form& form, PopupMenu& popped, std::optional<Point> at,
                          const MenuItem* bold)
{
    if (const auto window = window_of(form)) {
        const auto keyboard = std::exchange(window->events().menu_point, std::nullopt);
        at = at ? at : keyboard;
        window->let_go_of_mouse();
    }
    menu = {&popped, at, bold, &form};
    popups.push_back(*menu);
}

void MemoryToolkit::SetFocus(Form& form, const void* control)
{
    if (const auto window = window_of(form))
        window->wish_focus(place_of(form, form.entry_of(control)));
}

void MemoryToolkit::choose(const MenuItem* entry)
{
    const auto up = std::exchange(menu, std::nullopt);
    const auto window = up ? window_of(*up->form) : nullptr;
    if (!window || !entry || !entry->Enabled)
        return;
    const Form& form = *up->form;
    window->events().raise(place_of(form, form.entry_of(entry)), {.kind = EventKind::Click});
}

void MemoryToolkit::close(Form& form)
{
    const auto window = window_of(form);
    if (!window || !window->takes_input())
        return;
    Unload(*this, form);
    dispatcher_.sync_all();
}

std::int32_t MemoryToolkit::GetWindowLongA(const Form& form, int index)
{
    return styles_.get(form, index);
}

void MemoryToolkit::SetWindowLongA(Form& form, int index, std::int32_t value)
{
    styles_.set(form, index, value);
}

void MemoryToolkit::SetLayeredWindowAttributes(Form& form, Colour, std::uint8_t alpha,
                                               std::uint32_t flags)
{
    if (styles_.set_alpha(form, alpha, flags))
        alphas[&form].push_back(alpha);
}

void MemoryToolkit::tick(Form& form, int milliseconds)
{
    const auto window = window_of(form);
    for (const ControlEntry& entry : form.controls) {
        auto* const* timer = std::get_if<Timer*>(&entry.control);
        if (!timer)
            continue;
        const auto interval = tick_interval(**timer);
        int& waited = waited_[*timer];
        waited = interval ? waited + milliseconds : 0;
        if (!interval || waited < *interval)
            continue;
        waited = 0;
        if (window)
            window->events().raise(place_of(form, entry), {.kind = EventKind::Timer});
        else
            form.raise(entry, {.kind = EventKind::Timer});
    }
}

void MemoryToolkit::advance(Form& form, int milliseconds)
{
    for (int passed = 0; passed < milliseconds; ++passed)
        tick(form, 1);
}

void MemoryToolkit::advance(int milliseconds)
{
    for (int passed = 0; passed < milliseconds; ++passed) {
        for (Form* form : std::vector(shown))
            tick(*form, 1);
    }
}

void MemoryToolkit::user(Form& form, std::string_view control, const Event& event)
{
    form.raise(control, event);
}

} // namespace ostrelum::memory_platform
