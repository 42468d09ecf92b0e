#include "tests/report/ReportTest.h"

#include "frame/PictureForm.h"

namespace ostrelum {
namespace {

class ReportDialog : public ReportTest {
protected:
    /// Opens the dialog and does with it what a user would.
    void open(const std::function<void()>& user)
    {
        toolkit.modal = [&](Form& form) {
            EXPECT_EQ(&form, &F2);
            user();
        };
        F1.raise("CrearInforme", {.kind = EventKind::Click});
    }
    static void tick(std::string_view timer, int times = 1)
    {
        for (; times > 0; --times)
            F2.raise(timer, {.kind = EventKind::Timer});
    }
    bool on_show() const { return std::ranges::find(toolkit.shown, &F2) != toolkit.shown.end(); }
    std::vector<std::string> timers_on() const
    {
        std::vector<std::string> names;
        for (const ControlEntry& entry : F2.controls) {
            if (auto* const* timer = std::get_if<Timer*>(&entry.control);
                timer && (*timer)->Enabled)
                names.emplace_back(entry.name);
        }
        return names;
    }
    using Names = std::vector<std::string>;
};

TEST(Handlers, HaveTheirControls)
{
    MemoryProgram program;
    start_program();
    load_report_form();
    for (const Form* form : {static_cast<Form*>(&F1), static_cast<Form*>(&F2)}) {
        for (const HandlerTable& table : form->handlers) {
            for (const Handler& handler : table)
                EXPECT_TRUE(handler.control == "Form" || form->find(handler.control) ||
                            form->find(handler.control, 1))
                    << handler.control;
        }
    }
}

TEST_F(ReportDialog, WithoutTransparencyBuildsAtTheFirstTickAndCrossesItsPictureOver)
{
    TransEnabled = false;
    FontsOk = preferred_fonts;
    F1.Timer1.Enabled = true;
    open([&] {
        EXPECT_FALSE(F1.Timer1.Enabled);
        EXPECT_TRUE(on_show());
        EXPECT_EQ(F2.Icon, F1.Icon);
        EXPECT_EQ(F2.LStatus.Top, 99);
        EXPECT_FALSE(F2.BSave.Enabled || F2.BClose.Enabled);
        EXPECT_EQ(timers_on(), Names{"Descargador"});
        EXPECT_TRUE(toolkit.alphas[&F2].empty()) << "never see-through";
        EXPECT_NE(F2.Pic1.Stored, F6->Made.Stored);

        tick("Descargador");
        EXPECT_EQ(timers_on(), Names{"TAlphaB"});
        EXPECT_EQ(F2.LStatus.Caption, "Report made at 0 second/s");
        EXPECT_TRUE(F2.BSave.Enabled && F2.BClose.Enabled);
        EXPECT_EQ(toolkit.announced.back(), F2.LStatus.Caption);
        toolkit.Refresh(F2);
        EXPECT_EQ(toolkit.window_of(F2)->focused(), place_of(F2, F2.entry_of(&F2.BSave)));
        EXPECT_TRUE(F2.Tb.empty());
        const Picture design = F2.Pic1.Stored;
        tick("TAlphaB", 19);
        EXPECT_EQ(F2.BlendLevel, 247);
        EXPECT_EQ(F2.Pic1.Stored, design);
        EXPECT_NE(F2.Pic1.Surface, design);
        tick("TAlphaB");
        EXPECT_EQ(F2.Pic1.Surface, F6->Made.Stored);
        EXPECT_EQ(timers_on(), Names{});
        click("BClose");
        EXPECT_FALSE(on_show());
        EXPECT_EQ(F2.Tb1 + F2.Tb2 + F2.Tb3 + F2.Tb4, "");
        EXPECT_TRUE(F1.Timer1.Enabled);
    });
    open([] { EXPECT_NE(F2.Pic1.Stored, F6->Made.Stored) << "the next report starts anew"; });
}

TEST_F(ReportDialog, WhatIsPressedWhileItBuildsMeetsDisabledButtons)
{
    TransEnabled = false;
    toolkit.pending = [&] {
        EXPECT_FALSE(F2.Tb4.empty() || F2.BClose.Enabled || F2.BSave.Enabled);
        Unload(toolkit, F2);
    };
    open([&] {
        tick("Descargador");
        EXPECT_TRUE(F1.Timer1.Enabled) << "the frame's button closes it as soon as it can";
    });
}

TEST_F(ReportDialog, PaintsEachStepBeforeItsQueries)
{
    int step = 0;
    std::size_t asked = 0;
    script.asked.clear();
    WatchingToolkit watching([&] {
        const std::string text = "Making report, step " + std::to_string(++step) + "/12";
        EXPECT_EQ(F2.LStatus.Caption, text);
        EXPECT_EQ(script.asked.size() == asked, step == 1 || step == 10 || step == 12) << step;
        asked = script.asked.size();
    });
    make_report();
    EXPECT_EQ(step, 12);
}

TEST_F(ReportDialog, FadesInBuildsAndFadesOut)
{
    TransEnabled = true;
    Transparency = 0;
    open([&] {
        EXPECT_EQ(timers_on(), Names{"TLoad"});
        tick("TLoad", 11);
        EXPECT_EQ(Cnt, 1);
        EXPECT_EQ(F2.Tb4, "") << "no report before the dialog has come up";
        tick("TLoad");
        EXPECT_EQ(timers_on(), Names{"TAlphaB"});
        EXPECT_EQ(toolkit.alphas[&F2].front(), 0);
        EXPECT_EQ(toolkit.alphas[&F2].back(), 255);

        click("BClose");
        EXPECT_TRUE(on_show());
        EXPECT_TRUE(F1.Timer1.Enabled);
        tick("TUnload", 11);
        EXPECT_EQ(Cnt, 99);
        click("BSave");
        EXPECT_TRUE(save_dialog.requests.empty()) << "its documents are gone";
        EXPECT_FALSE(Unload(toolkit, F2)) << "closing again changes nothing";
        EXPECT_EQ(Cnt, 99);
        tick("TUnload");
        EXPECT_FALSE(on_show());
    });
}

TEST_F(ReportDialog, ClosedByTheFrameItFadesFromTheLevelThatItHasReached)
{
    TransEnabled = true;
    Transparency = 80;
    open([&] {
        tick("TLoad", 3);
        EXPECT_EQ(toolkit.alphas[&F2], (std::vector<int>{0, 22, 45, 68, 51}));
        Unload(toolkit, F2);
        EXPECT_FALSE(F2.Tb4.empty()) << "the frame's button leaves the documents alone";
        tick("TUnload", 3);
        EXPECT_FALSE(on_show());
        EXPECT_TRUE(F1.Timer1.Enabled);
    });
    Transparency = 0;
    open([&] {
        tick("TLoad", 5);
        Unload(toolkit, F2);
        EXPECT_EQ(timers_on(), Names{"TUnload"});
        EXPECT_EQ(Cnt, 55);
        tick("TUnload", 5);
        EXPECT_FALSE(on_show());
        EXPECT_EQ(F2.Tb4, "") << "a report that has not begun never begins";
    });
    TransEnabled = false;
    open([&] {
        Unload(toolkit, F2);
        EXPECT_EQ(timers_on(), Names{});
        EXPECT_FALSE(on_show());
        EXPECT_EQ(F2.Tb4, "");
    });
}

} // namespace
} // namespace ostrelum
