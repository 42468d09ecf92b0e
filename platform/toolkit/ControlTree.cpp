#include "platform/toolkit/ControlTree.h"

#include <algorithm>
#include <cstdlib>

namespace ostrelum::inline toolkit {
namespace {

struct AreaOf {
    std::optional<Area> operator()(const Line* line) const { return area_of(*line); }
    std::optional<Area> operator()(const PopupMenu*) const { return std::nullopt; }
    std::optional<Area> operator()(const MenuItem*) const { return std::nullopt; }
    std::optional<Area> operator()(const Timer*) const { return std::nullopt; }
    std::optional<Area> operator()(const auto* control) const
    {
        return Area{control->Left, control->Top, control->Width, control->Height};
    }
};

bool says_visible(const ControlEntry& entry)
{
    return std::visit(
        [](const auto* control) {
            if constexpr (requires { control->Visible; })
                return control->Visible;
            else
                return false;
        },
        entry.control);
}

} // namespace

const ControlEntry& entry_at(const Form& form, int control)
{
    return form.controls.at(static_cast<std::size_t>(control));
}

std::string_view name_of(const Form& form, int control)
{
    return control == form_itself ? "Form" : entry_at(form, control).name;
}

int place_of(const Form& form, const ControlEntry& entry)
{
    return static_cast<int>(&entry - form.controls.data());
}

Area area_of(const Line& line)
{
    return {std::min(line.X1, line.X2), std::min(line.Y1, line.Y2),
            std::max(std::abs(line.X2 - line.X1), 1), std::max(std::abs(line.Y2 - line.Y1), 1)};
}

std::optional<Area> area_in_container(const ControlEntry& entry)
{
    return std::visit(AreaOf{}, entry.control);
}

Area area_on_form(const Form& form, int control)
{
    if (control == form_itself)
        return {0, 0, form.ClientWidth, form.ClientHeight};
    const ControlEntry& entry = entry_at(form, control);
    Area area = area_in_container(entry).value_or(Area{});
    if (entry.container != form_itself) {
        const Area holder = area_on_form(form, entry.container);
        area.left += holder.left;
        area.top += holder.top;
    }
    return area;
}

bool is_visible(const Form& form, int control)
{
    if (control == form_itself)
        return true;
    const ControlEntry& entry = entry_at(form, control);
    return says_visible(entry) && is_visible(form, entry.container);
}

} // namespace ostrelum::inline toolkit
