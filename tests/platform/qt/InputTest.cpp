#include "tests/platform/qt/SampleWindow.h"

#include <QAccessible>
#include <QScreen>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QWheelEvent>

namespace ostrelum::qt_platform {
namespace {

class InputTest : public SampleWindow {};

TEST_F(InputTest, TheFocusFrameLiesOverTheBarAndGoesWithTheMouse)
{
    QTest::keyClick(&window(), Qt::Key_Tab);
    QTest::keyClick(window().focusWidget(), Qt::Key_Down);
    const auto corner = [&] { return window().grab().toImage().pixelColor(6, 46); };
    EXPECT_EQ(corner(), QColor(Qt::white));
    EXPECT_EQ(window().grab().toImage().pixelColor(7, 47), QColor(Qt::black));
    form.Bar.BackColor = rgb(5, 5, 5);
    toolkit().Refresh(form);
    QTest::mouseClick(&widget(form.Column), Qt::MiddleButton, {}, {90, 190});
    EXPECT_EQ(corner(), QColor(5, 5, 5));
}

TEST_F(InputTest, TheWheelTurnsWhatHasTheFocusAlone)
{
    const auto turn = [](QWidget& over) {
        const QPointF at(5, 5);
        QWheelEvent wheel(at, over.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&over, &wheel);
    };
    const auto state = [&] { return std::pair(form.Slide.Value, form.Pick.ListIndex); };
    const auto before = state();
    turn(widget(form.Slide));
    turn(widget(form.Pick));
    EXPECT_EQ(state(), before);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    for (QWidget* focused : {&widget(form.Slide), &widget(form.Pick)}) {
        focused->setFocus();
        turn(*focused);
    }
    EXPECT_NE(form.Slide.Value, before.first);
    EXPECT_NE(form.Pick.ListIndex, before.second);
}

TEST_F(InputTest, TooltipsShowMarkupLetterByLetterOnOneLine)
{
    const auto show = [&](const QString& text) {
        form.Free.ToolTipText = text.toStdString();
        toolkit().Refresh(form);
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), window().mapToGlobal(QPoint(125, 15)));
        QApplication::sendEvent(&widget(form.Free), &help);
        for (const QWidget* tip : QApplication::topLevelWidgets()) {
            if (tip->inherits("QTipLabel") && tip->isVisible())
                return tip->size();
        }
        return QSize();
    };
    const QString text = "<b>Disk</b> & \"more\"  of it";
    const QSize one_line = show(text);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), text);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&widget(form.Free))->text(QAccessible::Description),
        text);
    EXPECT_EQ(show(text + " and some words").height(), one_line.height());
    const QSize wrapped = show(QString("some words ").repeated(50));
    EXPECT_GT(wrapped.height(), one_line.height());
    EXPECT_LE(wrapped.width(), window().screen()->size().width());
}

TEST_F(InputTest, AScreenReaderSeesNamesAndPresses)
{
    QAccessibleInterface* entry = QAccessible::queryAccessibleInterface(&widget(form.Menu(3)));
    EXPECT_EQ(entry->role(), QAccessible::Button);
    EXPECT_EQ(entry->text(QAccessible::Name), "Entry");
    entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(conformance::calls.front(), "Menu_MouseDown(3) 1 0 29,9");

    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&window());
    EXPECT_EQ(whole->indexOfChild(QAccessible::queryAccessibleInterface(&widget(form.Rule))), -1);
    EXPECT_EQ(whole->childCount(), 7) << "the column and six controls, no line and no focus frame";
    EXPECT_EQ(whole->child(0)->childCount(), 4);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&widget(form.Free))->role(),
              QAccessible::StaticText);
}

} // namespace
} // namespace ostrelum::qt_platform
