#include "platform/qt/Fonts.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace ostrelum::qt_platform {
namespace {

/// Points are counted 96 to the inch, so that the layout is in pixels whatever the screen says of
/// itself.
int pixels_of(double points)
{
    return std::max(1, qRound(points * 96 / 72));
}

/// Parts of a pixel can only be had in points, which are the screen's.
void set_pixels(QFont& font, double pixels)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen && std::floor(pixels) != pixels)
        font.setPointSizeF(pixels * 72 / screen->logicalDotsPerInchY());
    else
        font.setPixelSize(std::max(1, static_cast<int>(pixels)));
}

/// The family and its stand-ins. The common last resort of Linux desktops, DejaVu Sans, is a good
/// tenth wider than all families that the window uses, so families of Arial's width come before it.
QStringList families_of(const QString& name)
{
    QStringList families{name};
    if (name == u"Segoe UI Light")
        families << "Selawik Light"
                 << "Open Sans Light"
                 << "Noto Sans Light";
    if (name == u"Segoe UI")
        families << "Selawik";
    if (name == u"Trebuchet MS")
        families << "Fira Sans";
    return families << "Arial"
                    << "Liberation Sans"
                    << "Arimo"
                    << "Nimbus Sans"
                    << "FreeSans"
                    << "DejaVu Sans Condensed";
}

} // namespace

QFont font_of(const FontSpec& spec, const FormScale& scale)
{
    QFont font;
    font.setFamilies(families_of(QString::fromStdString(spec.Name)));
    set_pixels(font, pixels_of(spec.Size) * scale.factor);
    font.setBold(spec.Bold);
    font.setItalic(spec.Italic);
    font.setUnderline(spec.Underline);
    return font;
}

TextSize measure(const QString& text, const QFont& font)
{
    // Not the sum of the advances, which leaves out how far a last slanted letter leans.
    const QSize box = QFontMetrics(font).size(0, text);
    return {box.width(), box.height()};
}

int left_lean(const QString& text, const QFont& font)
{
    return text.isEmpty() ? 0 : std::max(0, -QFontMetrics(font).leftBearing(text.front()));
}

} // namespace ostrelum::qt_platform
