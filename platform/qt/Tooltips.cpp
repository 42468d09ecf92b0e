#include "platform/qt/Tooltips.h"

#include <QFontMetrics>
#include <QScreen>
#include <QToolTip>

namespace ostrelum::qt_platform {
namespace {

/// Pixels between a tooltip's text and the screen's edges, for its frame.
constexpr int margin = 20;

/// Text as the toolkit's tooltips have to be given it to be shown letter by letter, even if it
/// looks like markup. They wrap short texts, too, if they may.
QString tooltip_markup(const QString& text, int room)
{
    const bool fits = QFontMetrics(QToolTip::font()).horizontalAdvance(text) <= room;
    const QString space = fits ? "pre" : "pre-wrap";
    return "<p style='white-space:" + space + "'>" + text.toHtmlEscaped() + "</p>";
}

} // namespace

bool show_tooltip(QWidget& widget, const QHelpEvent& help)
{
    if (widget.toolTip().isEmpty())
        return false;
    // The property keeps the bare text: a screen reader takes the description from there.
    const int room = widget.screen()->availableSize().width() - 2 * margin;
    QToolTip::showText(help.globalPos(), tooltip_markup(widget.toolTip(), room), &widget);
    return true;
}

} // namespace ostrelum::qt_platform
