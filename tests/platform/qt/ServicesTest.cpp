#include "tests/platform/qt/SampleWindow.h"

#include <QClipboard>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace ostrelum::qt_platform {
namespace {

using namespace std::string_literals;

class ServicesTest : public SampleWindow {};

QStringList messages;

TEST_F(ServicesTest, OnlyWebAddressesOpen)
{
    // The platform in memory opens nothing and complains of each address that gets to it.
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { messages << text; });
    const auto browser = make_qt_browser();
    for (const char* address : {"file://host/bin/true", "/bin/true", "javascript:alert(1)",
                                "http://", "", "https:/no", "mailto:a@example.com"})
        browser->ShellExecuteA("Open", address);
    browser->ShellExecuteA("Print", "https://example.com/");
    EXPECT_EQ(messages, QStringList());
    browser->ShellExecuteA("Open", "https://example.com/a");
    browser->ShellExecuteA("open", "http://example.com/b");
    qInstallMessageHandler(before);
    ASSERT_EQ(messages.size(), 2);
    EXPECT_TRUE(messages[0].contains("https://example.com/a"));
}

TEST_F(ServicesTest, TheClipboardHoldsPlainText)
{
    const auto clipboard = make_qt_clipboard();
    clipboard->SetText("línea\r\n<b>");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QWidget& focused = widget(form.Menu(1));
    focused.setFocus();
    for (const auto key : {Qt::Key_A, Qt::Key_C})
        QTest::keyClick(&focused, key, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "línea\r\n<b>") << "no label's text";
    clipboard->Clear();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

/// Answers the dialogs that come up, one after the other.
void answer(std::vector<std::function<void(QWidget&)>> answers)
{
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, poll,
                     [poll, answers, next = 0U, last = static_cast<QWidget*>(nullptr)]() mutable {
                         QWidget* modal = QApplication::activeModalWidget();
                         if (!modal || modal == last)
                             return;
                         last = qobject_cast<QMessageBox*>(modal) ? nullptr : modal;
                         answers.at(next++)(*modal);
                         if (next == answers.size())
                             poll->deleteLater();
                     });
    poll->start(20);
}

TEST_F(ServicesTest, TheFileThatWillBeWrittenIsAskedAbout)
{
    const QTemporaryDir folder;
    QFile(folder.filePath("Report.html")).open(QIODevice::WriteOnly);
    const OpenFileName request{.title = "Save",
                               .filter = "Text (*.txt)\0*.txt\0Page\0*.html\0"s,
                               .filter_index = 2,
                               .file = "Report",
                               .initial_dir = folder.path().toStdString(),
                               .target = [](const std::string& path, int index) {
                                   return path + (index == 2 ? ".html" : ".txt");
                               }};
    const auto button = [](QMessageBox::StandardButton which) {
        return [which](QWidget& box) { dynamic_cast<QMessageBox&>(box).button(which)->click(); };
    };
    const auto accept = [](QWidget& dialog) { dynamic_cast<QDialog&>(dialog).accept(); };
    const auto dialog = make_qt_save_dialog();

    answer({accept, button(QMessageBox::No),
            [](QWidget& again) { dynamic_cast<QDialog&>(again).reject(); }});
    EXPECT_EQ(dialog->GetSaveFileNameA(request), std::nullopt);

    answer({accept, button(QMessageBox::Yes)});
    const auto chosen = dialog->GetSaveFileNameA(request);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->path, folder.filePath("Report").toStdString());
    EXPECT_EQ(chosen->filter_index, 2);

    answer({[&](QWidget& shown) {
        dynamic_cast<QFileDialog&>(shown).selectNameFilter("Text (*.txt)");
        accept(shown);
    }});
    EXPECT_EQ(dialog->GetSaveFileNameA(request)->filter_index, 1) << "no such text file yet";
}

TEST_F(ServicesTest, TheScreenInMemoryIsKnown)
{
    const SessionFacts facts = qt_session_facts()();
    ASSERT_EQ(facts.screens.size(), 1U);
    EXPECT_EQ(facts.screens[0].bits_per_pixel, 32);
    EXPECT_TRUE(facts.screens[0].primary);
    EXPECT_GT(facts.screens[0].width, 0);
    EXPECT_FALSE(facts.left_handed);
}

} // namespace
} // namespace ostrelum::qt_platform
