#include "platform/qt/QtBackEnd.h"
#include "platform/qt/Text.h"
#include "platform/system/Failure.h"

#include <QApplication>
#include <QClipboard>

namespace ostrelum::qt_platform {
namespace {

QClipboard& clipboard()
{
    QClipboard* shared = QGuiApplication::clipboard();
    if (!shared)
        throw Failure("no clipboard");
    return *shared;
}

class QtClipboard : public Clipboard {
public:
    void Clear() override { clipboard().clear(); }
    void SetText(const std::string& text) override { clipboard().setText(qt_text(text)); }
};

} // namespace

std::unique_ptr<Clipboard> make_qt_clipboard()
{
    return std::make_unique<QtClipboard>();
}

void prepare_end()
{
    if (!qApp || QGuiApplication::platformName() != u"xcb" || !clipboard().ownsClipboard())
        return;
    // On X11 a program serves what it has copied as long as it lives. The toolkit hands the text
    // over when the application object goes; the process ends before anything could miss it.
    qApp->~QApplication();
}

} // namespace ostrelum::qt_platform
