#pragma once

#include "platform/windows/toolkit/DevicePicture.h"
#include "platform/windows/toolkit/PaintedWindow.h"

/// The controls that only show something.
namespace ostrelum::windows_platform {

class LabelWindow : public BindingOf<Label>, public PaintedWindow {
public:
    LabelWindow(Label& label, int control, FormHost& host, WindowEvents& events);
    void draw(HDC dc) const override;
    bool is_opaque() const override { return false; }

    /// Pixels behind the text of a label that sizes itself, which its letters may take.
    static constexpr int reach = 2;

private:
    void apply() override;
    void apply_text();
    void place_text();

    /// The screen's pixels by which the first letter leans out of the label.
    int lean_ = 0;
    /// The same for what is behind its text.
    int reach_ = 0;
};

class PictureWindow : public BindingOf<PictureBox>, public PaintedWindow {
public:
    PictureWindow(PictureBox& box, int control, FormHost& host, WindowEvents& events);
    void draw(HDC dc) const override;
    bool is_opaque() const override;

private:
    void apply() override;

    DevicePicture picture_;
};

class LineWindow : public BindingOf<Line>, public PaintedWindow {
public:
    LineWindow(Line& line, int control, FormHost& host, WindowEvents& events);
    void draw(HDC dc) const override;
    bool is_opaque() const override { return false; }
    bool lets_mouse_through() const override { return true; }

private:
    void apply() override;
};

} // namespace ostrelum::windows_platform
