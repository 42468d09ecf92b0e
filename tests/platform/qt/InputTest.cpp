#include "platform/qt/Tooltips.h"
#include "tests/platform/qt/Desk.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace ostrelum::qt_platform::desk {
namespace {

class InputTest : public Desk {};

TEST_F(InputTest, TheMouseReachesTheControlThatListens)
{
    struct Case {
        const char* name;
        int index;
        QPoint at;
        Qt::MouseButton button;
        Heard expected;
    };
    // clang-format off
    const Case cases[] = {
        {"Menu", 3, {5, 6}, Qt::LeftButton, {"Menu_MouseDown(3) 1 0 5,6", "Menu_MouseUp(3) 1 0 5,6", "Menu_Click(3)"}},
        {"Menu", 1, {5, 6}, Qt::RightButton, {"Menu_MouseDown(1) 2 0 5,6", "Menu_MouseUp(1) 2 0 5,6"}},
        {"Menu", 1, {1, 1}, Qt::MiddleButton, {"Menu_MouseDown(1) 4 0 1,1", "Menu_MouseUp(1) 4 0 1,1"}},
        {"Column", 0, {90, 190}, Qt::LeftButton, {"Column_MouseDown 1 0 90,190", "Column_Click"}},
        {"Silent", 0, {3, 3}, Qt::LeftButton, {"Bar_Click"}},
        {"Free", 0, {2, 3}, Qt::RightButton, {"Form_MouseDown 2 0 122,13"}},
    };
    // clang-format on
    for (const Case& one : cases) {
        QTest::mouseClick(&widget(one.name, one.index), one.button, {}, one.at);
        EXPECT_EQ(take_heard(), one.expected) << one.name;
    }
}

TEST_F(InputTest, AReleaseOutsideIsNoClickAndAMoveIsSeenWhereSomebodyListens)
{
    QWidget& entry = widget("Menu", 1);
    QTest::mousePress(&entry, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier, {5, 5});
    QTest::mouseRelease(&entry, Qt::LeftButton, {}, {5, 100});
    EXPECT_EQ(heard, (Heard{"Menu_MouseDown(1) 1 5 5,5", "Menu_MouseUp(1) 1 0 5,100"}));
    EXPECT_FALSE(widget("Free").hasMouseTracking());
    QTest::mouseMove(&widget("Column"), {50, 180});
    EXPECT_EQ(heard.back(), "Column_MouseMove 0 0 50,180");
}

TEST_F(InputTest, TheUsersChangesStandInTheDataWhenTheEventComes)
{
    auto& slide = widget<QScrollBar>("Slide");
    slide.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(form.Slide.Value, 60);
    EXPECT_EQ(take_heard(), Heard{"Slide_Change"});

    slide.setSliderDown(true);
    slide.setSliderPosition(70);
    slide.setSliderPosition(75);
    slide.setSliderDown(false);
    EXPECT_EQ(take_heard(), (Heard{"Slide_Scroll", "Slide_Scroll", "Slide_Change"}));
    EXPECT_EQ(form.Slide.Value, 75);

    widget<QCheckBox>("Tick").click();
    EXPECT_EQ(form.Tick.Value, 1);
    EXPECT_EQ(take_heard(), Heard{"Tick_Click"});

    QTest::keyClick(&widget("Pick"), Qt::Key_Down);
    EXPECT_EQ(form.Pick.ListIndex, 2);
    EXPECT_EQ(take_heard(), Heard{"Pick_Click"});

    acts["Slide_Change"] = [&] { form.Slide.Value = 50; };
    slide.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(heard, Heard{"Slide_Change"});
    EXPECT_EQ(slide.value(), 50) << "a handler may put the change back";
}

TEST_F(InputTest, KeysMoveAmongTheEntriesAndPressThem)
{
    QWidget* const start = window().focusWidget();
    EXPECT_EQ(start, &window()) << "no control is marked before a key is used";
    QTest::keyClick(&window(), Qt::Key_Tab);
    EXPECT_EQ(window().focusWidget(), &widget("Menu", 1));
    QTest::keyClick(window().focusWidget(), Qt::Key_Down);
    QTest::keyClick(window().focusWidget(), Qt::Key_End);
    EXPECT_EQ(window().focusWidget(), &widget("Menu", 3));
    QTest::keyClick(window().focusWidget(), Qt::Key_Down);
    QTest::keyClick(window().focusWidget(), Qt::Key_Up);
    EXPECT_EQ(window().focusWidget(), &widget("Menu", 2));
    EXPECT_EQ(heard, Heard{});
    for (const auto key : {Qt::Key_Return, Qt::Key_Space}) {
        QTest::keyClick(window().focusWidget(), key);
        EXPECT_EQ(take_heard(), (Heard{"Menu_MouseDown(2) 1 0 29,9", "Menu_MouseUp(2) 1 0 29,9",
                                       "Menu_Click(2)"}));
    }
}

TEST_F(InputTest, TheFocusFrameLiesOverTheBarAndGoesWithTheMouse)
{
    QTest::keyClick(&window(), Qt::Key_Tab);
    QTest::keyClick(window().focusWidget(), Qt::Key_Down);
    const auto corner = [&] { return window().grab().toImage().pixelColor(6, 46); };
    EXPECT_EQ(corner(), QColor(Qt::white));
    EXPECT_EQ(window().grab().toImage().pixelColor(7, 47), QColor(Qt::black));
    form.Bar.BackColor = rgb(5, 5, 5);
    toolkit().Refresh(form);
    QTest::mouseClick(&widget("Column"), Qt::MiddleButton, {}, {90, 190});
    EXPECT_EQ(corner(), QColor(5, 5, 5));
}

TEST_F(InputTest, EnterAndEscapePressTheirButtons)
{
    QTest::keyClick(&window(), Qt::Key_Enter);
    QTest::keyClick(&widget("Slide"), Qt::Key_Escape);
    EXPECT_EQ(take_heard(), (Heard{"Ok_Click", "No_Click"}));
    widget("No").setFocus();
    QTest::keyClick(&widget("No"), Qt::Key_Return);
    EXPECT_EQ(take_heard(), Heard{"No_Click"}) << "the focus goes before the default";
    form.Ok.Visible = false;
    window().setFocus();
    toolkit().Refresh(form);
    QTest::keyClick(&window(), Qt::Key_Enter);
    EXPECT_EQ(heard, Heard{});
    widget("No").setFocus();
    acts["No_Click"] = [&] { form.No.Visible = false; };
    QTest::keyClick(&widget("No"), Qt::Key_Return);
    EXPECT_EQ(window().focusWidget(), &window()) << "the button has gone";
}

TEST_F(InputTest, TheMenuKeyFallsBackToTheFormWhosePopupRaisesTheChoiceAfterItHasGone)
{
    QTest::keyClick(&window(), Qt::Key_Tab);
    QTest::keyClick(window().focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(take_heard(), (Heard{"Menu_MouseDown(1) 2 0 29,9", "Menu_MouseUp(1) 2 0 29,9",
                                   "Form_MouseDown 2 0 149,99"}));
    acts["Form_MouseDown"] = [&] { toolkit().popup(form, form.Pops, {}, &form.Last); };
    acts["Last_Click"] = [] { EXPECT_EQ(QApplication::activePopupWidget(), nullptr); };
    QTest::keyClick(&window(), Qt::Key_Menu);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->pos(), window().mapToGlobal(QPoint(149, 99))) << "not at the mouse";
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_FALSE(menu->actions()[0]->isEnabled());
    EXPECT_TRUE(menu->actions()[1]->isSeparator());
    EXPECT_TRUE(menu->actions()[2]->font().bold());
    EXPECT_EQ(menu->defaultAction(), menu->actions()[2]);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    take_heard();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard, Heard{"Last_Click"});
}

TEST_F(InputTest, TooltipsShowMarkupLetterByLetter)
{
    const QString text = "<b>Disk</b> & \"more\"  of it";
    form.Free.ToolTipText = text.toStdString();
    toolkit().Refresh(form);
    const QPoint middle = window().mapToGlobal(QPoint(125, 15));
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), middle);
    QApplication::sendEvent(&widget("Free"), &help);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), text);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&widget("Free"))->text(QAccessible::Description),
        text);
}

TEST_F(InputTest, AScreenReaderSeesNamesAndPresses)
{
    QAccessibleInterface* entry = QAccessible::queryAccessibleInterface(&widget("Menu", 3));
    EXPECT_EQ(entry->role(), QAccessible::Button);
    EXPECT_EQ(entry->text(QAccessible::Name), "Entry");
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(heard.front(), "Menu_MouseDown(3) 1 0 29,9");

    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&window());
    EXPECT_EQ(whole->indexOfChild(QAccessible::queryAccessibleInterface(&widget("Rule"))), -1);
    EXPECT_EQ(whole->childCount(), 7) << "the column and six controls, no line and no focus frame";
    EXPECT_EQ(whole->child(0)->childCount(), 4);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&widget("Free"))->role(),
              QAccessible::StaticText);
}

} // namespace
} // namespace ostrelum::qt_platform::desk
