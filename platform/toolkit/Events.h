#pragma once

#include "platform/toolkit/Keys.h"

#include <array>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

namespace ostrelum::inline toolkit {

enum class EventKind {
    Initialize,
    Load,
    Unload,
    Click,
    MouseDown,
    MouseUp,
    MouseMove,
    Change,
    Scroll,
    Timer,
    KeyDown,
};

/// Numbers of the mouse buttons as events give them.
inline constexpr int left_button = 1;
inline constexpr int right_button = 2;
inline constexpr int middle_button = 4;

/// One event on its way to its handler.
struct Event {
    EventKind kind = EventKind::Click;
    /// 1 and up in a control array, else 0.
    int index = 0;
    int button = 0;
    /// 1 Shift, 2 Ctrl, 4 Alt, added up.
    int shift = 0;
    /// Pixels inside the control.
    int x = 0;
    int y = 0;
    Key key = Key::Other;
    /// Of an Unload: set to keep the window.
    bool* cancel = nullptr;
};

/// One row of a form's table of handlers. The row is the handler's name, such as "LMenu_MouseDown":
/// what stands before the last underscore is the control (or "Form"), what stands behind it the
/// event.
struct Handler {
    using Plain = void (*)();
    using Indexed = void (*)(int index);
    using Mouse = void (*)(int button, int shift, int x, int y);
    using IndexedMouse = void (*)(int index, int button, int shift, int x, int y);
    using Keys = void (*)(Key key, int shift);
    using IndexedKeys = void (*)(int index, Key key, int shift);
    using Cancelling = void (*)(bool& cancel);
    using Call = std::variant<Plain, Indexed, Mouse, IndexedMouse, Keys, IndexedKeys, Cancelling>;

    std::string_view control;
    EventKind kind;
    Call call;

    template <class Function>
    consteval Handler(std::string_view name, Function* function)
        : control(name.substr(0, name.rfind('_'))), kind(kind_of(name.substr(name.rfind('_') + 1))),
          call(function)
    {
    }

    void operator()(const Event& event) const;

private:
    static consteval EventKind kind_of(std::string_view word)
    {
        constexpr std::array<std::pair<std::string_view, EventKind>, 11> words{{
            {"Initialize", EventKind::Initialize},
            {"Load", EventKind::Load},
            {"Unload", EventKind::Unload},
            {"Click", EventKind::Click},
            {"MouseDown", EventKind::MouseDown},
            {"MouseUp", EventKind::MouseUp},
            {"MouseMove", EventKind::MouseMove},
            {"Change", EventKind::Change},
            {"Scroll", EventKind::Scroll},
            {"Timer", EventKind::Timer},
            {"KeyDown", EventKind::KeyDown},
        }};
        for (const auto& [text, kind] : words) {
            if (text == word)
                return kind;
        }
        throw "the name does not end in an event's word";
    }
};

/// A row of a table of handlers, written once: the name is the function's own.
#define OSTRELUM_ON(function)                                                                      \
    ::ostrelum::Handler                                                                            \
    {                                                                                              \
#function, function                                                                        \
    }

using HandlerTable = std::span<const Handler>;

} // namespace ostrelum::inline toolkit
