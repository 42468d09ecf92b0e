#include "platform/qt/QtBackEnd.h"
#include "platform/qt/Text.h"

#include <QDesktopServices>
#include <QUrl>

namespace ostrelum::qt_platform {
namespace {

class QtBrowser : public Browser {
public:
    void ShellExecuteA(const std::string& verb, const std::string& address) override
    {
        const QUrl url(qt_text(address), QUrl::StrictMode);
        // Anything but a web address could start a program.
        const bool web = url.scheme() == u"http" || url.scheme() == u"https";
        if (qt_text(verb).toLower() == u"open" && web && !url.host().isEmpty())
            QDesktopServices::openUrl(url);
    }
};

} // namespace

std::unique_ptr<Browser> make_qt_browser()
{
    return std::make_unique<QtBrowser>();
}

} // namespace ostrelum::qt_platform
