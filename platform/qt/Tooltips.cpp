#include "platform/qt/Tooltips.h"

#include <QToolTip>

namespace ostrelum::qt_platform {

QString tooltip_markup(const QString& text)
{
    return "<p style='white-space:pre-wrap'>" + text.toHtmlEscaped() + "</p>";
}

bool show_tooltip(QWidget& widget, const QHelpEvent& help)
{
    if (widget.toolTip().isEmpty())
        return false;
    // The property keeps the bare text: a screen reader takes the description from there.
    QToolTip::showText(help.globalPos(), tooltip_markup(widget.toolTip()), &widget);
    return true;
}

} // namespace ostrelum::qt_platform
