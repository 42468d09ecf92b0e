#include "platform/qt/FilterPairs.h"
#include "platform/qt/QtBackEnd.h"
#include "platform/qt/Text.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>

namespace ostrelum::qt_platform {
namespace {

class QtSaveDialog : public SaveDialog {
public:
    std::optional<ChosenFile> GetSaveFileNameA(const OpenFileName& request) override;
};

/// The words are the toolkit's own, so that they come in the desktop's language.
bool may_replace(QWidget& dialog, const QString& file)
{
    const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
    QMessageBox box(QMessageBox::Warning, dialog.windowTitle(),
                    question.arg(QFileInfo(file).fileName()), QMessageBox::Yes | QMessageBox::No,
                    &dialog);
    box.setDefaultButton(QMessageBox::No);
    box.setLayoutDirection(dialog.layoutDirection());
    return box.exec() == QMessageBox::Yes;
}

void prepare(QFileDialog& dialog, const OpenFileName& request, const QStringList& filters)
{
    dialog.setWindowTitle(qt_text(request.title));
    dialog.setWindowModality(Qt::ApplicationModal);
    // Its words are in the desktop's language, unlike those of the program's windows.
    dialog.setLayoutDirection(QLocale().textDirection());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // What is asked about is the file that will be written, which need not be the typed one.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filter_index - 1));
    if (!request.initial_dir.empty())
        dialog.setDirectory(qt_text(request.initial_dir));
    dialog.selectFile(qt_text(request.file));
}

ChosenFile chosen_in(const QFileDialog& dialog, const QStringList& filters)
{
    const auto filter = filters.indexOf(dialog.selectedNameFilter());
    return {.path = dialog.selectedFiles().value(0).toStdString(),
            .filter_index = static_cast<int>(std::max<qsizetype>(filter, 0)) + 1};
}

std::optional<ChosenFile> QtSaveDialog::GetSaveFileNameA(const OpenFileName& request)
{
    const QStringList filters = name_filters(request.filter);
    QFileDialog dialog(QApplication::activeWindow());
    prepare(dialog, request, filters);
    while (dialog.exec() == QDialog::Accepted) {
        const ChosenFile chosen = chosen_in(dialog, filters);
        if (chosen.path.empty())
            return std::nullopt;
        const std::string written =
            request.target ? request.target(chosen.path, chosen.filter_index) : chosen.path;
        if (!QFileInfo::exists(qt_text(written)) || may_replace(dialog, qt_text(written)))
            return chosen;
    }
    return std::nullopt;
}

} // namespace

std::unique_ptr<SaveDialog> make_qt_save_dialog()
{
    return std::make_unique<QtSaveDialog>();
}

} // namespace ostrelum::qt_platform
