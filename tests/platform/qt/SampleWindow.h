#pragma once

#include "platform/qt/QtToolkit.h"
#include "tests/platform/toolkit/conformance/Conformance.h"

namespace ostrelum::qt_platform {

/// The one toolkit of the process, on a platform that draws into memory.
QtToolkit& qt_toolkit();

/// Each test has the sample form on show.
class SampleWindow : public testing::Test {
protected:
    SampleWindow();
    ~SampleWindow() override;

    QtToolkit& toolkit() { return qt_toolkit(); }
    FormWindow& window() { return *toolkit().window_of(form); }
    QWidget& widget(const auto& control)
    {
        return *window().widget(place_of(form, form.entry_of(&control)));
    }

    conformance::SampleForm form;
};

} // namespace ostrelum::qt_platform
