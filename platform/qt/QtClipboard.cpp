#include "platform/qt/QtBackEnd.h"
#include "platform/qt/Text.h"
#include "platform/system/Failure.h"

#include <QClipboard>
#include <QGuiApplication>

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

} // namespace ostrelum::qt_platform
