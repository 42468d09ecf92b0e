#pragma once

#include "platform/qt/QtToolkit.h"

#include <gtest/gtest.h>

#include <map>

/// A small form with every kind of control, on a toolkit that draws into memory.
namespace ostrelum::qt_platform::desk {

struct SampleForm : Form {
    PictureBox Column;
    ControlArray<Label, 3> Menu;
    PictureBox Bar;
    Label Silent;
    Label Free;
    Line Rule;
    CommandButton Ok;
    CommandButton No;
    ScrollBar Slide;
    CheckBox Tick;
    ComboBox Pick;
    PopupMenu Pops;
    MenuItem First;
    MenuItem Gap;
    MenuItem Last;
    Timer Clock;
};

/// What the handlers were called with, in order: "Menu_MouseDown(2) 1 0 5,6".
inline std::vector<std::string> heard;
/// What a handler does besides, by its name.
inline std::map<std::string, std::function<void()>> acts;

/// A picture of one colour, in which only the first pixel is `corner`.
Bitmap plain_bitmap(int width, int height, Colour colour, Colour corner);

/// Each test has the sample form on show, with nothing heard yet.
class Desk : public testing::Test {
protected:
    Desk();
    ~Desk() override;

    QtToolkit& toolkit();
    FormWindow& window() { return *toolkit().window_of(form); }
    /// The widget of a control.
    template <class WidgetType = QWidget>
    WidgetType& widget(const std::string& name, int index = 0)
    {
        return dynamic_cast<WidgetType&>(find_widget(name, index));
    }
    /// What was heard since the last call.
    static std::vector<std::string> take_heard() { return std::exchange(heard, {}); }

    SampleForm form;

private:
    QWidget& find_widget(const std::string& name, int index);
};

using Heard = std::vector<std::string>;

} // namespace ostrelum::qt_platform::desk
