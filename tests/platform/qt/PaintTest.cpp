#include "platform/qt/Fonts.h"
#include "platform/qt/PictureWidget.h"
#include "tests/platform/qt/SampleWindow.h"

#include <QFontDatabase>
#include <QLabel>
#include <QTranslator>

namespace ostrelum::qt_platform {
namespace {

class PaintTest : public SampleWindow {};

QColor colour_at(QWidget& widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

TEST_F(PaintTest, TheWindowHasItsSizeForGood)
{
    EXPECT_EQ(window().size(), QSize(300, 200));
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMaximizeButtonHint);
    // A toolkit's own frame has a button that does this all the same.
    for (const auto state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        window().setWindowState(state);
        QCoreApplication::processEvents();
        EXPECT_EQ(window().windowState() & state, Qt::WindowNoState);
        EXPECT_EQ(window().size(), QSize(300, 200));
    }
}

/// The word by which the toolkit's own translations tell their direction.
class FromTheRight : public QTranslator {
public:
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return QByteArrayView(text) == "QT_LAYOUT_DIRECTION" ? "RTL" : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(PaintTest, PlacesHoldInALanguageThatIsWrittenFromTheRight)
{
    FromTheRight words;
    QCoreApplication::installTranslator(&words);
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    QCoreApplication::removeTranslator(&words);
}

TEST_F(PaintTest, PicturesArePixelExact)
{
    EXPECT_EQ(colour_at(widget(form.Column), 0, 0), QColor(250, 120, 0));
    EXPECT_EQ(colour_at(widget(form.Column), 99, 199), QColor(40, 40, 40));
    EXPECT_EQ(colour_at(window(), 179, 40), QColor(200, 0, 0)) << "a line";

    // A width whose rows are filled up, and a picture smaller than its box.
    form.Bar.Surface = Picture(conformance::plain_bitmap(3, 3, rgb(0, 0, 255), rgb(0, 255, 0)));
    form.Bar.BackColor = rgb(9, 8, 7);
    toolkit().Refresh(form);
    EXPECT_EQ(colour_at(widget(form.Bar), 0, 0), QColor(0, 255, 0));
    EXPECT_EQ(colour_at(widget(form.Bar), 2, 2), QColor(0, 0, 255));
    EXPECT_EQ(colour_at(widget(form.Bar), 3, 2), QColor(9, 8, 7));

    Bitmap holed = conformance::plain_bitmap(2, 1, rgb(0, 0, 255), rgb(255, 0, 0));
    holed.coverage = {255, 0};
    form.Bar.Surface = Picture(holed);
    form.Bar.Transparent = true;
    toolkit().Refresh(form);
    EXPECT_EQ(colour_at(window(), 0, 45), QColor(255, 0, 0));
    EXPECT_EQ(colour_at(window(), 1, 45), QColor(40, 40, 40)) << "the column under the bar";
}

TEST_F(PaintTest, ALabelIsAsWideAsItsInk)
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
        const int before = room - (form.Free.Left - widget(form.Free).x()) - 1;
        for (int y = 0; y < form.Free.Height; ++y) {
            ASSERT_EQ(shot.pixel(before, y), shot.pixel(0, y)) << text << " at " << y;
            ASSERT_EQ(shot.pixel(room + form.Free.Width, y), shot.pixel(0, y)) << text;
        }
    }
}

TEST_F(PaintTest, NoStandInIsMuchWiderThanTheLayoutAllows)
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
} // namespace ostrelum::qt_platform
