#include "platform/qt/Accessibility.h"

#include "platform/qt/Announcement.h"
#include "platform/qt/FocusFrame.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/LabelBinding.h"
#include "platform/qt/LineBinding.h"
#include "platform/qt/PictureWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace ostrelum::qt_platform {
namespace {

bool has_content(const QWidget& widget);

/// Lines, pictures without a name that hold nothing, and labels that another one reads.
bool is_decoration(const QWidget& widget)
{
    if (const auto* label = dynamic_cast<const LabelWidget*>(&widget))
        return label->reading().isEmpty();
    if (dynamic_cast<const LineWidget*>(&widget) || dynamic_cast<const FocusFrame*>(&widget) ||
        dynamic_cast<const Announcement*>(&widget) || dynamic_cast<const Veil*>(&widget))
        return true;
    return dynamic_cast<const PictureWidget*>(&widget) && widget.accessibleName().isEmpty() &&
           widget.focusPolicy() == Qt::NoFocus && !has_content(widget);
}

QList<QWidget*> content_of(const QWidget& widget)
{
    QList<QWidget*> content;
    for (QWidget* child : widget.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isWindow() && !is_decoration(*child))
            content.append(child);
    }
    return content;
}

bool has_content(const QWidget& widget)
{
    return !content_of(widget).isEmpty();
}

/// What can be pressed by the keyboard can be pressed by a screen reader.
template <class WidgetType>
class PressableInterface : public QAccessibleWidget {
public:
    PressableInterface(WidgetType& widget, QAccessible::Role role)
        : QAccessibleWidget(&widget, role), pressable_(widget)
    {
    }
    QAccessible::Role role() const override
    {
        return can_press() ? QAccessible::Button : QAccessibleWidget::role();
    }
    QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (can_press())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && can_press())
            pressable_.press();
        else
            QAccessibleWidget::doAction(name);
    }

protected:
    virtual bool can_press() const { return pressable_.focusPolicy() != Qt::NoFocus; }

    WidgetType& pressable_;
};

QAccessible::Role role_of(LabelRole role)
{
    switch (role) {
    case LabelRole::Tab: return QAccessible::PageTab;
    case LabelRole::Link: return QAccessible::Link;
    case LabelRole::Row:
    case LabelRole::Button: break;
    }
    return QAccessible::Button;
}

class LabelInterface : public PressableInterface<LabelWidget> {
public:
    explicit LabelInterface(LabelWidget& label) : PressableInterface(label, QAccessible::StaticText)
    {
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? pressable_.reading() : PressableInterface::text(kind);
    }
    QAccessible::Role role() const override
    {
        return can_press() ? role_of(pressable_.label->Role) : PressableInterface::role();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = PressableInterface::state();
        const bool tab = pressable_.label->Role == LabelRole::Tab;
        state.selectable = tab;
        state.selected = tab && pressable_.label->Chosen;
        return state;
    }

protected:
    bool can_press() const override
    {
        return PressableInterface::can_press() && pressable_.label->Role != LabelRole::Row;
    }
};

/// A window or a picture box: its children are those that a reader has something of.
template <class Base>
class HolderInterface : public Base {
public:
    using Base::Base;
    int childCount() const override { return static_cast<int>(content_of(*this->widget()).size()); }
    QAccessibleInterface* child(int index) const override
    {
        return QAccessible::queryAccessibleInterface(content_of(*this->widget()).value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return static_cast<int>(
            content_of(*this->widget()).indexOf(qobject_cast<QWidget*>(child->object())));
    }
};

class WindowInterface : public HolderInterface<QAccessibleWidget> {
public:
    explicit WindowInterface(FormWindow& window)
        : HolderInterface(&window, window.windowType() == Qt::Dialog ? QAccessible::Dialog
                                                                     : QAccessible::Window),
          window_(window)
    {
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? window_.reading() : HolderInterface::text(kind);
    }

private:
    const FormWindow& window_;
};

QAccessibleInterface* interface_of(const QString&, QObject* object)
{
    if (auto* label = dynamic_cast<LabelWidget*>(object))
        return new LabelInterface(*label);
    if (auto* picture = dynamic_cast<PictureWidget*>(object)) {
        const bool holder = has_content(*picture);
        return new HolderInterface<PressableInterface<PictureWidget>>(
            *picture, holder ? QAccessible::Grouping : QAccessible::Graphic);
    }
    if (auto* window = dynamic_cast<FormWindow*>(object))
        return new WindowInterface(*window);
    if (auto* announcement = dynamic_cast<Announcement*>(object))
        return new QAccessibleWidget(announcement, QAccessible::Notification);
    return nullptr;
}

} // namespace

void install_accessibility()
{
    QAccessible::installFactory(interface_of);
}

} // namespace ostrelum::qt_platform
