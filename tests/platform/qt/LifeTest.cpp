#include "tests/platform/qt/Desk.h"

#include <QTest>
#include <QTimer>

namespace ostrelum::qt_platform::desk {
namespace {

class LifeTest : public Desk {};

void make_transparent(Toolkit& toolkit, Form& form, std::uint8_t alpha)
{
    toolkit.SetWindowLongA(form, extended_style_index,
                           toolkit.GetWindowLongA(form, extended_style_index) | layered_style);
    toolkit.SetLayeredWindowAttributes(form, 0, alpha, alpha_flag);
}

TEST_F(LifeTest, TheWindowHasItsSizeForGood)
{
    EXPECT_EQ(window().size(), QSize(300, 200));
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(LifeTest, ClosingAsksTheForm)
{
    acts["refuse"] = [] {};
    window().close();
    EXPECT_TRUE(window().isVisible());
    acts.clear();
    window().close();
    EXPECT_EQ(toolkit().window_of(form), nullptr);
    EXPECT_EQ(heard, (Heard{"Form_Unload", "Form_Unload"}));
}

TEST_F(LifeTest, OpacitySetBeforeTheWindowHoldsAndGoesWithIt)
{
    toolkit().Hide(form);
    EXPECT_EQ(toolkit().GetWindowLongA(form, extended_style_index), 0);
    toolkit().SetLayeredWindowAttributes(form, 0, 10, alpha_flag);
    make_transparent(toolkit(), form, 51);
    toolkit().Show(form);
    EXPECT_NEAR(window().windowOpacity(), 0.2, 0.01);
    EXPECT_EQ(toolkit().GetWindowLongA(form, extended_style_index), layered_style);
    make_transparent(toolkit(), form, 0);
    EXPECT_EQ(window().windowOpacity(), 0);

    toolkit().Hide(form);
    toolkit().Show(form);
    EXPECT_EQ(window().windowOpacity(), 1) << "a new window starts opaque";
    EXPECT_EQ(toolkit().GetWindowLongA(form, extended_style_index), 0);
    toolkit().SetLayeredWindowAttributes(form, 0, 10, alpha_flag);
    toolkit().SetWindowLongA(form, extended_style_index, layered_style);
    EXPECT_EQ(window().windowOpacity(), 1) << "it was not a layered window then";
}

TEST_F(LifeTest, ATimerStopsInItsOwnTickAndStartsAgain)
{
    int ticks = 0;
    acts["Clock_Timer"] = [&] { form.Clock.Enabled = ++ticks % 3 != 0; };
    for (const int expected : {3, 6}) {
        form.Clock.Enabled = true;
        toolkit().Refresh(form);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == expected; }, 5000));
        QTest::qWait(80);
        EXPECT_EQ(ticks, expected);
    }
    form.Clock.Enabled = true;
    toolkit().Refresh(form);
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        toolkit().Hide(form);
        QTest::qSleep(80);
        toolkit().DoEvents();
        EXPECT_EQ(ticks, 6) << "none without a window";
        loop.quit();
    });
    loop.exec();
}

TEST_F(LifeTest, EventsComeInsideAnotherOnlyWhereItLetsThem)
{
    form.Clock.Enabled = true;
    bool inside = false;
    acts["Clock_Timer"] = [&] { EXPECT_TRUE(inside); };
    acts["Ok_Click"] = [&] {
        form.Tick.Value = 1;
        toolkit().Refresh(form);
        QTest::qSleep(80);
        EXPECT_EQ(heard, Heard{"Ok_Click"});
        inside = true;
        toolkit().DoEvents();
        EXPECT_EQ(heard, (Heard{"Ok_Click", "Clock_Timer"}));
        form.Clock.Enabled = false;
    };
    QTest::keyClick(&window(), Qt::Key_Enter);
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(LifeTest, AModalFormReturnsWhenItIsHidden)
{
    toolkit().Hide(form);
    acts["Clock_Timer"] = [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), &window());
        EXPECT_TRUE(Unload(toolkit(), form));
    };
    form.Clock.Enabled = true;
    toolkit().ShowModal(form);
    EXPECT_EQ(toolkit().window_of(form), nullptr);
    EXPECT_EQ(heard, (Heard{"Clock_Timer", "Form_Unload"}));
}

TEST_F(LifeTest, AControlMayTakeItsOwnWindowAway)
{
    acts["Menu_MouseDown"] = [&] { toolkit().Hide(form); };
    QWidget& entry = widget("Menu", 1);
    QTest::mouseClick(&entry, Qt::LeftButton, {}, {5, 5});
    EXPECT_EQ(heard, Heard{"Menu_MouseDown(1) 1 0 5,5"});
}

} // namespace
} // namespace ostrelum::qt_platform::desk
