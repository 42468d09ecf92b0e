#include "tests/platform/qt/SampleWindow.h"
#include "tests/platform/qt/WidgetLook.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QMenu>
#include <QScrollBar>
#include <QTest>

namespace ostrelum::qt_platform {
namespace {

using namespace conformance;

/// One enumerator of the toolkit for each of the program's.
template <class Ours, class Theirs>
struct Pair {
    Ours ours;
    Theirs theirs;
};

constexpr Pair<Key, Qt::Key> keys[] = {{Key::Tab, Qt::Key_Tab},
                                       {Key::Up, Qt::Key_Up},
                                       {Key::Down, Qt::Key_Down},
                                       {Key::Left, Qt::Key_Left},
                                       {Key::Right, Qt::Key_Right},
                                       {Key::Home, Qt::Key_Home},
                                       {Key::End, Qt::Key_End},
                                       {Key::PageUp, Qt::Key_PageUp},
                                       {Key::PageDown, Qt::Key_PageDown},
                                       {Key::Enter, Qt::Key_Return},
                                       {Key::Space, Qt::Key_Space},
                                       {Key::Escape, Qt::Key_Escape},
                                       {Key::Menu, Qt::Key_Menu},
                                       {Key::F10, Qt::Key_F10},
                                       {Key::F5, Qt::Key_F5},
                                       {Key::C, Qt::Key_C},
                                       {Key::Q, Qt::Key_Q}};
constexpr Pair<int, Qt::MouseButton> buttons[] = {{left_button, Qt::LeftButton},
                                                  {right_button, Qt::RightButton},
                                                  {middle_button, Qt::MiddleButton}};
constexpr Pair<MouseCursor, Qt::CursorShape> cursors[] = {
    {MouseCursor::Arrow, Qt::ArrowCursor},
    {MouseCursor::Hourglass, Qt::WaitCursor},
    {MouseCursor::Hand, Qt::PointingHandCursor}};

auto theirs(const auto& pairs, auto ours)
{
    return std::ranges::find(pairs, ours, [](const auto& pair) { return pair.ours; })->theirs;
}

auto ours(const auto& pairs, auto theirs)
{
    return std::ranges::find(pairs, theirs, [](const auto& pair) { return pair.theirs; })->ours;
}

Qt::KeyboardModifiers modifiers_of(int shift)
{
    return (shift & 1 ? Qt::ShiftModifier : Qt::NoModifier) |
           (shift & 2 ? Qt::ControlModifier : Qt::NoModifier) |
           (shift & 4 ? Qt::AltModifier : Qt::NoModifier);
}

/// What an entry of a menu shows: its text, and behind it the shortcut.
std::string piece(const QAction& action, int which)
{
    return action.text().split(u'\t').value(which).toStdString();
}

QMenu* open_menu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

class QtDriver : public Driver {
public:
    QtDriver() { clock_.start(); }
    ~QtDriver() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    Toolkit& toolkit() override { return qt_toolkit(); }

    void button_down(Form& form, Point at, int button, int shift) override
    {
        QTest::mousePress(native(form), theirs(buttons, button), modifiers_of(shift), {at.x, at.y});
    }
    void button_up(Form& form, Point at, int button, int shift) override
    {
        if (is_on_screen(form))
            QTest::mouseRelease(native(form), theirs(buttons, button), modifiers_of(shift),
                                {at.x, at.y});
    }
    void move_mouse(Form& form, Point at) override { QTest::mouseMove(native(form), {at.x, at.y}); }
    void press_key(Form& form, Key key, int shift) override
    {
        QTest::keyClick(window(form).focusWidget(), theirs(keys, key), modifiers_of(shift));
    }
    void drag(Form& form, const ScrollBar& bar, const std::vector<int>& values) override
    {
        QWidget* widget = window(form).widget(place_of(form, form.entry_of(&bar)));
        auto& slider = dynamic_cast<QScrollBar&>(*widget);
        slider.setSliderDown(true);
        for (const int value : values)
            slider.setSliderPosition(value);
        slider.setSliderDown(false);
    }
    void close(Form& form) override { window(form).close(); }
    void choose(Form& form, const MenuItem* entry) override;

    bool is_on_screen(const Form& form) const override
    {
        const FormWindow* window = qt_toolkit().window_of(form);
        return window && window->isVisible();
    }
    std::string title(const Form& form) const override
    {
        return window(form).windowTitle().toStdString();
    }
    Point size(const Form& form) const override
    {
        return {window(form).width(), window(form).height()};
    }
    int opacity(const Form& form) const override
    {
        return qRound(window(form).windowOpacity() * 255);
    }
    Look look(const Form& form, int control) const override;
    Spoken spoken(const Form& form, int control) const override;
    int focused(const Form& form) const override
    {
        return control_of(form, window(form).focusWidget());
    }
    int marked(const Form& form) const override;
    std::vector<MenuEntry> menu() const override;
    std::optional<Point> menu_place(const Form& form) const override
    {
        const QPoint place = window(form).mapFromGlobal(open_menu()->pos());
        return Point{place.x(), place.y()};
    }
    MouseCursor screen_cursor() const override
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor ? ours(cursors, cursor->shape()) : MouseCursor::Default;
    }

    int now() const override { return static_cast<int>(clock_.elapsed()); }
    void let_time_pass(int milliseconds) override { QTest::qWait(milliseconds); }
    void stay_busy(int milliseconds) override { QTest::qSleep(milliseconds); }
    bool wait_for(const std::function<bool()>& condition) override
    {
        return QTest::qWaitFor(condition, 5000);
    }
    void show_modal(Form& form) override { qt_toolkit().ShowModal(form); }

private:
    static FormWindow& window(const Form& form) { return *qt_toolkit().window_of(form); }
    static QWindow* native(const Form& form) { return window(form).windowHandle(); }
    static int control_of(const Form& form, const QWidget* widget)
    {
        for (const ControlEntry& entry : form.controls) {
            if (widget && window(form).widget(place_of(form, entry)) == widget)
                return place_of(form, entry);
        }
        return form_itself;
    }

    QElapsedTimer clock_;
};

Look QtDriver::look(const Form& form, int control) const
{
    const QWidget& widget = *window(form).widget(control);
    Look look = look_of(widget);
    const QRect place = widget.geometry().marginsRemoved(widget.contentsMargins());
    look.area = {place.x(), place.y(), place.width(), place.height()};
    look.visible = widget.isVisible();
    look.enabled = widget.isEnabled();
    look.tooltip = widget.toolTip().toStdString();
    if (widget.testAttribute(Qt::WA_SetCursor))
        look.cursor = ours(cursors, widget.cursor().shape());
    return look;
}

/// What is not among its holder's children is passed over.
Spoken QtDriver::spoken(const Form& form, int control) const
{
    QAccessibleInterface* read =
        QAccessible::queryAccessibleInterface(window(form).widget(control));
    if (read->parent()->indexOfChild(read) < 0)
        return {};
    return {read->text(QAccessible::Name).toStdString(), read->state().selected != 0};
}

/// The control in the frame of the focus.
int QtDriver::marked(const Form& form) const
{
    for (const QObject* child : window(form).children()) {
        const auto* frame = dynamic_cast<const FocusFrame*>(child);
        if (!frame || !frame->isVisible())
            continue;
        for (const ControlEntry& entry : form.controls) {
            const QWidget* widget = window(form).widget(place_of(form, entry));
            if (widget &&
                QRect(widget->mapTo(widget->window(), QPoint()), widget->size()).center() ==
                    frame->geometry().center())
                return place_of(form, entry);
        }
    }
    return form_itself;
}

std::vector<MenuEntry> QtDriver::menu() const
{
    std::vector<MenuEntry> entries;
    if (const QMenu* menu = open_menu()) {
        for (const QAction* action : menu->actions())
            entries.push_back({action->isSeparator() ? "-" : piece(*action, 0), action->isEnabled(),
                               action->font().bold(), piece(*action, 1)});
    }
    return entries;
}

void QtDriver::choose(Form&, const MenuItem* entry)
{
    QMenu* menu = open_menu();
    if (!entry) {
        QTest::keyClick(menu, Qt::Key_Escape);
        return;
    }
    for (QAction* action : menu->actions()) {
        if (piece(*action, 0) == entry->Caption)
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
    if (open_menu())
        QTest::keyClick(menu, Qt::Key_Escape);
    QCoreApplication::processEvents();
}

std::unique_ptr<Driver> make_qt_driver()
{
    return std::make_unique<QtDriver>();
}

} // namespace
} // namespace ostrelum::qt_platform

namespace ostrelum::conformance {

INSTANTIATE_TEST_SUITE_P(Toolkit, Conformance,
                         testing::Values(BackEnd{"Qt", qt_platform::make_qt_driver}));

} // namespace ostrelum::conformance
