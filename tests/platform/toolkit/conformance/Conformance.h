#pragma once

#include "tests/platform/toolkit/conformance/Driver.h"
#include "tests/platform/toolkit/conformance/SampleForm.h"

#include <gtest/gtest.h>

namespace ostrelum::conformance {

/// What any toolkit must do. Each back end's test program instantiates these tests with its driver:
///     INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance, testing::Values(BackEnd{"Qt", make_driver}));
/// Each test has the sample form on show, with nothing called yet.
class Conformance : public testing::TestWithParam<BackEnd> {
protected:
    Conformance()
    {
        acts.clear();
        toolkit.Show(form);
        calls.clear();
    }
    ~Conformance() override { toolkit.Hide(form); }

    /// Presses a mouse button and lets it go: what that calls, the way there left aside.
    Calls press(Point at, int button = left_button)
    {
        driver->move_mouse(form, at);
        take_calls();
        driver->button_down(form, at, button, 0);
        driver->button_up(form, at, button, 0);
        return take_calls();
    }
    void key(Key which, int shift = 0) { driver->press_key(form, which, shift); }
    Look look(const auto& control) const { return driver->look(form, place(control)); }
    int place(const auto& control) const { return place_of(form, form.entry_of(&control)); }
    int focused() const { return driver->focused(form); }

    SampleForm form;
    SampleForm dialog;
    const std::unique_ptr<Driver> driver = GetParam().make_driver();
    Toolkit& toolkit = driver->toolkit();
};

} // namespace ostrelum::conformance
