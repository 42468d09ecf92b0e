#include "platform/qt/QtToolkit.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Fonts.h"
#include "platform/qt/PopupMenus.h"
#include "platform/qt/Text.h"

#include <QClipboard>
#include <QEventLoop>
#include <QFontInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QStyleFactory>
#include <QTranslator>
#include <QWindow>

namespace ostrelum::qt_platform {
namespace {

/// The desktop's words on the toolkit's own buttons, such as those of the save dialog.
void translate_toolkit(QApplication& application)
{
    auto* words = new QTranslator(&application);
    if (words->load(QLocale(), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(words);
}

/// Where no desktop says which font menus and tooltips have, the system's first one may be a
/// terminal's.
void choose_font()
{
    if (QFontInfo(QApplication::font()).fixedPitch())
        QApplication::setFont(font_of({.Name = "Tahoma", .Size = 9}));
}

} // namespace

std::unique_ptr<Toolkit> make_qt_toolkit(int& argc, char** argv, const QtLook& look)
{
    return std::make_unique<QtToolkit>(argc, argv, look);
}

QtToolkit::QtToolkit(int& argc, char** argv, const QtLook& look)
    : application_(argc, argv), cursors_(look.hand, look.hot_spot),
      scale_(fitting_scale({look.window_width, look.window_height})), dispatcher_([this] {
          for (const auto& [form, window] : windows_)
              window->sync();
      })
{
    // The places of the controls are fixed, so their look is too.
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    // Not the window's alone: menus and their entries, too, would turn with the desktop's language,
    // though none of the program's own is written from the right.
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    choose_font();
    // The program decides when it ends, not the last window.
    QApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(qt_text(look.desktop_entry));
    translate_toolkit(application_);
    install_accessibility();
}

QtToolkit::~QtToolkit()
{
    for (const auto& [form, window] : windows_)
        delete window;
}

/// The toolkit's controls need no preparation.
void QtToolkit::InitCommonControls() {}

TextSize QtToolkit::text_size(const std::string& text, const FontSpec& font) const
{
    const TextSize in_window = measure(qt_text(text), font_of(font, scale_));
    return {scale_.room_on_form(in_window.width), scale_.room_on_form(in_window.height)};
}

FormWindow* QtToolkit::window_of(const Form& form) const
{
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
}

FormWindow& QtToolkit::make_window(Form& form, Qt::WindowType kind)
{
    if (FormWindow* window = window_of(form))
        return *window;
    auto* window = new FormWindow(form, *this, cursors_, scale_, dispatcher_, kind,
                                  [this, &form] { user_closes(form); });
    windows_[&form] = window;
    if (styles_.alpha(form) != WindowStyles::opaque)
        apply_opacity(form);
    return *window;
}

void QtToolkit::user_closes(Form& form)
{
    Unload(*this, form);
    dispatcher_.sync_all();
}

void QtToolkit::Show(Form& form)
{
    FormWindow& window = make_window(form, Qt::Window);
    dispatcher_.sync_all();
    window.bring_up();
}

void QtToolkit::ShowModal(Form& form)
{
    const QWidget* below = QApplication::activeWindow();
    FormWindow& window = make_window(form, Qt::Dialog);
    window.setWindowModality(Qt::ApplicationModal);
    if (below && below != &window)
        window.windowHandle()->setTransientParent(below->windowHandle());
    QEventLoop loop;
    const QPointer<FormWindow> watched(&window);
    window.gone = [&loop] { loop.quit(); };
    Show(form);
    loop.exec();
    // The end of the whole program ends the loop as well.
    if (watched)
        watched->gone = nullptr;
}

void QtToolkit::Hide(Form& form)
{
    styles_.forget(form);
    FormWindow* window = window_of(form);
    if (!window)
        return;
    windows_.erase(&form);
    window->close_down();
    // An event of one of its widgets may still run.
    window->deleteLater();
    if (windows_.empty())
        QCoreApplication::quit();
}

void QtToolkit::Refresh(Form& form)
{
    dispatcher_.sync_all();
    if (FormWindow* window = window_of(form))
        window->repaint();
}

void QtToolkit::DoEvents()
{
    dispatcher_.sync_all();
    QCoreApplication::processEvents();
}

void QtToolkit::popup(Form& form, PopupMenu& menu, std::optional<Point> at, const MenuItem* bold)
{
    FormWindow* window = window_of(form);
    if (!window)
        return;
    if (const auto keyboard = std::exchange(window->events().menu_point, std::nullopt); !at)
        at = keyboard;
    const QPoint place = at ? window->on_screen(*at) : QCursor::pos();
    pop_up(*window, menu, place, bold);
}

void QtToolkit::SetFocus(Form& form, const void* control)
{
    if (FormWindow* window = window_of(form))
        window->wish_focus(place_of(form, form.entry_of(control)));
}

void QtToolkit::announce(Form& form, const std::string& text)
{
    if (FormWindow* window = window_of(form))
        window->announce(text);
}

void QtToolkit::set_screen_cursor(MouseCursor cursor)
{
    cursors_.set_screen(cursor);
}

std::int32_t QtToolkit::GetWindowLongA(const Form& form, int index)
{
    return styles_.get(form, index);
}

void QtToolkit::SetWindowLongA(Form& form, int index, std::int32_t value)
{
    styles_.set(form, index, value);
    apply_opacity(form);
}

void QtToolkit::SetLayeredWindowAttributes(Form& form, Colour, std::uint8_t alpha,
                                           std::uint32_t flags)
{
    if (styles_.set_alpha(form, alpha, flags))
        apply_opacity(form);
}

void QtToolkit::apply_opacity(const Form& form)
{
    if (FormWindow* window = window_of(form))
        window->set_alpha(styles_.alpha(form));
}

int QtToolkit::run()
{
    return QApplication::exec();
}

void QtToolkit::prepare_end()
{
    const QClipboard* clipboard = QGuiApplication::clipboard();
    if (QGuiApplication::platformName() != u"xcb" || !clipboard || !clipboard->ownsClipboard())
        return;
    // On X11 a program serves what it has copied as long as it lives. The toolkit hands the text
    // over to the desktop's clipboard manager when the application object goes; the process ends
    // before anything could miss it.
    application_.~QApplication();
}

} // namespace ostrelum::qt_platform
