#include "platform/qt/Fonts.h"
#include "platform/qt/PictureWidget.h"
#include "tests/platform/qt/Desk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace ostrelum::qt_platform::desk {
namespace {

class SyncTest : public Desk {};

QColor colour_at(QWidget& widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

TEST_F(SyncTest, RefreshShowsWhatTheDataSays)
{
    form.Caption = "Other";
    form.Free.Caption = "a <b>device</b> & more";
    form.Free.ForeColor = rgb(1, 2, 3);
    form.Free.Left = 130;
    form.Free.ToolTipText = "tip";
    form.Ok.Enabled = false;
    form.Slide.Max = 30;
    form.Slide.Value = 20;
    form.Tick.Value = 1;
    form.Pick.List = {"x", "y"};
    form.Pick.ListIndex = -1;
    form.Bar.Visible = false;
    toolkit().Refresh(form);

    EXPECT_EQ(window().windowTitle(), "Other");
    auto& label = widget<QLabel>("Free");
    EXPECT_EQ(label.text(), "a <b>device</b> & more");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(1, 2, 3));
    EXPECT_EQ(label.geometry(), QRect(130, 10, form.Free.Width, form.Free.Height));
    EXPECT_FALSE(widget("Ok").isEnabled());
    EXPECT_EQ(widget<QScrollBar>("Slide").maximum(), 30);
    EXPECT_EQ(widget<QScrollBar>("Slide").value(), 20);
    EXPECT_TRUE(widget<QCheckBox>("Tick").isChecked());
    EXPECT_EQ(widget<QComboBox>("Pick").count(), 2);
    EXPECT_EQ(widget<QComboBox>("Pick").currentIndex(), -1);
    EXPECT_FALSE(widget("Silent").isVisible()) << "goes with the box that holds it";
    EXPECT_EQ(heard, Heard{}) << "what the program sets raises nothing";

    form.Free.WordWrap = true;
    form.Free.Width = 50;
    form.Free.Height = 60;
    toolkit().Refresh(form);
    EXPECT_EQ(label.size(), QSize(50, 60));
    EXPECT_TRUE(label.wordWrap());
}

TEST_F(SyncTest, PicturesArePixelExact)
{
    EXPECT_EQ(colour_at(widget("Column"), 0, 0), QColor(250, 120, 0));
    EXPECT_EQ(colour_at(widget("Column"), 99, 199), QColor(40, 40, 40));

    // A width whose rows are filled up, and a picture smaller than its box.
    form.Bar.Surface = Picture(plain_bitmap(3, 3, rgb(0, 0, 255), rgb(0, 255, 0)));
    form.Bar.BackColor = rgb(9, 8, 7);
    toolkit().Refresh(form);
    EXPECT_EQ(colour_at(widget("Bar"), 0, 0), QColor(0, 255, 0));
    EXPECT_EQ(colour_at(widget("Bar"), 2, 2), QColor(0, 0, 255));
    EXPECT_EQ(colour_at(widget("Bar"), 3, 2), QColor(9, 8, 7));

    Bitmap holed = plain_bitmap(2, 1, rgb(0, 0, 255), rgb(255, 0, 0));
    holed.coverage = {255, 0};
    form.Bar.Surface = Picture(holed);
    form.Bar.Transparent = true;
    toolkit().Refresh(form);
    EXPECT_EQ(colour_at(window(), 0, 45), QColor(255, 0, 0));
    EXPECT_EQ(colour_at(window(), 1, 45), QColor(40, 40, 40)) << "the column under the bar";
}

TEST_F(SyncTest, LaterControlsLieOverEarlierOnes)
{
    EXPECT_EQ(window().childAt(20, 55), &widget("Silent"));
    EXPECT_EQ(window().childAt(80, 60), &widget("Bar"));
    EXPECT_EQ(window().childAt(15, 15), &widget("Menu", 1));
    EXPECT_EQ(colour_at(window(), 120, 40), QColor(200, 0, 0));
    EXPECT_EQ(colour_at(window(), 180, 40), QColor(255, 255, 255)) << "the end is not drawn";
}

TEST_F(SyncTest, ALabelIsAsWideAsItsInk)
{
    for (const char* text : {"Value f", "Wolff", "M/", "K", "A", "f"}) {
        form.Free.Font = {.Name = "Liberation Serif", .Size = 24, .Italic = true};
        form.Free.Caption = text;
        toolkit().Refresh(form);
        constexpr int room = 20;
        QLabel roomy(text);
        roomy.setFont(font_of(form.Free.Font));
        roomy.setContentsMargins(room, 0, 0, 0);
        roomy.setFixedSize(form.Free.Width + 2 * room, form.Free.Height);
        const QImage shot = roomy.grab().toImage();
        const int before = room - (form.Free.Left - widget("Free").x()) - 1;
        for (int y = 0; y < form.Free.Height; ++y) {
            ASSERT_EQ(shot.pixel(before, y), shot.pixel(0, y)) << text << " at " << y;
            ASSERT_EQ(shot.pixel(room + form.Free.Width, y), shot.pixel(0, y)) << text;
        }
    }
}

TEST_F(SyncTest, NoStandInIsMuchWiderThanTheLayoutAllows)
{
    if (!QFontDatabase::families().contains("Liberation Sans"))
        GTEST_SKIP() << "nothing near the width of the fonts asked for is installed";
    const std::string text = "Information about the operating system";
    QFont measure_font("Liberation Sans");
    measure_font.setPixelSize(13);
    const double width = measure(QString::fromStdString(text), measure_font).width;
    for (const char* name : {"Arial", "Tahoma", "Segoe UI", "Segoe UI Light", "Trebuchet MS"})
        EXPECT_LE(toolkit().text_size(text, {.Name = name, .Size = 9.75}).width, width * 1.08)
            << name;
}

} // namespace
} // namespace ostrelum::qt_platform::desk
