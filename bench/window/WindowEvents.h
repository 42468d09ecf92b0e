#pragma once

#include "frame/Lifecycle.h"
#include "frame/MainForm.h"
#include "frame/Navigation.h"
#include "tests/MemoryProgram.h"

#include <functional>
#include <utility>
#include <vector>

/// What the window does for one event of the user or of a fade, up to the last pixel: the same
/// events on each toolkit. A screen at 60 Hz leaves 16 ms for it.
namespace ostrelum {

/// The program in its window, on a toolkit that outlives it, with settings in memory. Without
/// another management service all is unknown.
class WindowProgram : public MemoryProgram {
public:
    using Service = decltype(Platform::get_object);

    explicit WindowProgram(Toolkit& shown_by, Service service = {})
    {
        platform.toolkit = &shown_by;
        if (service)
            platform.get_object = std::move(service);
        start_program();
        // The window system has to say that the window can be seen.
        shown_by.DoEvents();
        paint();
    }
    ~WindowProgram() { platform.toolkit->Hide(F1); }

    /// Brings what changed to the screen before it returns.
    static void paint() { platform.toolkit->Refresh(F1); }
};

struct WindowEvent {
    std::string name;
    /// What comes before the first step.
    std::function<void()> prepare;
    /// Without the painting of what it changes.
    std::function<void()> step;
};

inline void open_section(int section)
{
    // As if another had been open.
    F1.Seccion = 0;
    LMenu_MouseDown(section, left_button, 0, 0, 0);
}

inline void step_picture_fade()
{
    Cnt2 = 117;
    F1.raise("TAlphaB", {.kind = EventKind::Timer});
}

inline void step_window_fade()
{
    Cnt = 50;
    F1.raise("TLoad", {.kind = EventKind::Timer});
}

inline WindowEvent slider_event(const std::string& name, ScrollBar& slider, const char* control)
{
    return {name, [] { F1.raise("Personalizar", {.kind = EventKind::Click}); },
            [&slider, control] {
                slider.Value = (slider.Value + 7) % slider.Max;
                F1.raise(control, {.kind = EventKind::Scroll});
            }};
}

inline std::vector<WindowEvent> window_events()
{
    std::vector<WindowEvent> events;
    for (int section = 1; section <= section_count; ++section)
        events.push_back({"OpenASection/" + std::to_string(section), [] {},
                          [section] { open_section(section); }});
    // All that is seen of a page changes.
    events.push_back(
        {"OpenTheNextSection", [] {}, [] { open_section(F1.Seccion % section_count + 1); }});
    events.push_back({"StepOfThePictureFade", [] {}, step_picture_fade});
    events.push_back({"StepOfTheWindowFade", [] {}, step_window_fade});
    // With its redrawing, its pending events and the five tints.
    events.push_back(slider_event("StepOfASlider/Colour", F1.Scroll1, "Scroll1"));
    events.push_back(slider_event("StepOfASlider/Shine", F1.Scroll2, "Scroll2"));
    events.push_back(slider_event("StepOfASlider/Transparency", F1.Scroll3, "Scroll3"));
    return events;
}

} // namespace ostrelum
