#include "platform/memory/MemoryToolkit.h"

#include <algorithm>

namespace ostrelum::memory_platform {
namespace {

int code_points(const std::string& text)
{
    return static_cast<int>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

} // namespace

TextSize MemoryToolkit::text_size(const std::string& text, const FontSpec&) const
{
    return {code_points(text) * CharacterWidth, LineHeight};
}

void MemoryToolkit::Show(Form& form)
{
    std::erase(shown, &form);
    shown.push_back(&form);
    Refresh(form);
}

void MemoryToolkit::ShowModal(Form& form)
{
    Show(form);
    if (modal)
        modal(form);
    Hide(form);
}

void MemoryToolkit::Hide(Form& form)
{
    std::erase(shown, &form);
}

void MemoryToolkit::Refresh(Form& form)
{
    for (const ControlEntry& entry : form.controls) {
        if (auto* const* label = std::get_if<Label*>(&entry.control))
            fit(*this, **label);
    }
    ++refreshes[&form];
}

void MemoryToolkit::DoEvents()
{
    if (const auto events = std::exchange(pending, nullptr))
        events();
}

void MemoryToolkit::popup(Form&, PopupMenu& menu, std::optional<Point> at, const MenuItem* bold)
{
    popups.push_back({&menu, at, bold});
}

std::int32_t MemoryToolkit::GetWindowLongA(const Form& form, int index)
{
    return window_longs_[{&form, index}];
}

void MemoryToolkit::SetWindowLongA(Form& form, int index, std::int32_t value)
{
    window_longs_[{&form, index}] = value;
}

void MemoryToolkit::SetLayeredWindowAttributes(Form& form, Colour, std::uint8_t alpha,
                                               std::uint32_t flags)
{
    if (flags == alpha_flag && (GetWindowLongA(form, extended_style_index) & layered_style) != 0)
        alphas[&form].push_back(alpha);
}

void MemoryToolkit::advance(Form& form, int milliseconds)
{
    for (int passed = 0; passed < milliseconds; ++passed) {
        for (const ControlEntry& entry : form.controls) {
            auto* const* timer = std::get_if<Timer*>(&entry.control);
            if (!timer)
                continue;
            int& waited = waited_[*timer];
            waited = (*timer)->Enabled ? waited + 1 : 0;
            if (waited >= std::max((*timer)->Interval, FrameTime)) {
                waited = 0;
                form.raise(entry, {.kind = EventKind::Timer});
            }
        }
    }
}

void MemoryToolkit::user(Form& form, std::string_view control, const Event& event)
{
    form.raise(control, event);
}

} // namespace ostrelum::memory_platform
