#include "tests/platform/qt/WidgetLook.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace ostrelum::qt_platform {

using namespace conformance;

namespace {

Look text_look(const QWidget& widget, const QString& text)
{
    const QFont font = widget.font();
    return {.text = text.toStdString(),
            .font = {.Name = font.families().value(0).toStdString(),
                     .Size = font.pixelSize() * 72 / 96.0,
                     .Bold = font.bold(),
                     .Italic = font.italic(),
                     .Underline = font.underline()}};
}

Look look_of(const QLabel& label)
{
    Look look = text_look(label, label.text());
    const QColor colour = label.palette().color(QPalette::WindowText);
    look.colour = rgb(colour.red(), colour.green(), colour.blue());
    look.alignment = label.alignment() & Qt::AlignRight     ? Align::Right
                     : label.alignment() & Qt::AlignHCenter ? Align::Centre
                                                            : Align::Left;
    look.wraps = label.wordWrap();
    return look;
}

} // namespace

Look look_of(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return look_of(*label);
    if (const auto* button = qobject_cast<const QPushButton*>(&widget))
        return text_look(*button, button->text());
    if (const auto* bar = qobject_cast<const QScrollBar*>(&widget))
        return {.min = bar->minimum(), .max = bar->maximum(), .value = bar->value()};
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        Look look = text_look(*box, box->text());
        look.value = box->isChecked() ? 1 : 0;
        return look;
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        Look look = text_look(*box, "");
        look.value = box->currentIndex();
        for (int entry = 0; entry < box->count(); ++entry)
            look.list.push_back(box->itemText(entry).toStdString());
        return look;
    }
    return {};
}

} // namespace ostrelum::qt_platform
