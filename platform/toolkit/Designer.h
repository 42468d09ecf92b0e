#pragma once

#include "platform/toolkit/Form.h"

#include <type_traits>

namespace ostrelum::inline toolkit {

/// Places the controls of a form, one call for each row of the form's design: gives the control its
/// first look and enters it in Form::controls. Later rows lie over earlier ones of the same
/// container.
class Designer {
public:
    explicit Designer(Form& form) : form_(form) { form_.controls.clear(); }

    /// The controls that follow lie in this picture box or menu of the form, which has been placed
    /// before.
    void inside(const auto& container)
    {
        container_ = static_cast<int>(&form_.entry_of(&container) - form_.controls.data());
    }
    /// The controls that follow lie on the form itself.
    void on_the_form() { container_ = -1; }

    template <class ControlType>
    void place(std::string_view name, ControlType& control,
               const std::type_identity_t<ControlType>& look)
    {
        enter(name, 0, control, look);
    }

    /// `look` gives the first look of each control by its index.
    template <class ControlType, std::size_t Count, class Look>
    void place(std::string_view name, ControlArray<ControlType, Count>& controls, Look look)
    {
        for (int index = 1; index <= controls.count; ++index)
            enter(name, index, controls(index), look(index));
    }

private:
    template <class ControlType>
    void enter(std::string_view name, int index, ControlType& control, ControlType look)
    {
        if constexpr (std::is_same_v<ControlType, PictureBox>)
            look.Surface = look.Stored;
        control = look;
        form_.controls.push_back({name, index, &control, container_});
    }

    Form& form_;
    int container_ = -1;
};

} // namespace ostrelum::inline toolkit
