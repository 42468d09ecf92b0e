#include "tests/platform/qt/SampleWindow.h"

#include <QTemporaryDir>

namespace ostrelum::qt_platform {

QtToolkit& qt_toolkit()
{
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    static QtToolkit* one = [] {
        // The file dialog keeps settings of its own.
        static const QTemporaryDir home;
        qputenv("HOME", home.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "offscreen");
        // Left to the end of the process, as the program does.
        return new QtToolkit(argc, argv, {});
    }();
    return *one;
}

SampleWindow::SampleWindow()
{
    conformance::acts.clear();
    toolkit().Show(form);
    conformance::calls.clear();
}

SampleWindow::~SampleWindow()
{
    toolkit().Hide(form);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace ostrelum::qt_platform
