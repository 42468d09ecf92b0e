#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "report/Documents.h"
#include "report/Report.h"
#include "report/ReportEvents.h"
#include "report/ReportForm.h"
#include "sources/Ascii.h"
#include "sources/Texts.h"

#include <algorithm>

namespace ostrelum::inline report {
namespace {

/// Filter of the last accepted dialog, counted from 1: it alone chooses the document.
std::uint8_t ChosenFormat = 0;

/// The element of a text of pieces that NUL characters divide, counted from 0; empty where there is
/// none.
std::string element(std::string_view pieces, int index)
{
    for (; index > 0 && !pieces.empty(); --index)
        pieces.remove_prefix(std::min(pieces.find('\0'), pieces.size() - 1) + 1);
    return std::string(pieces.substr(0, pieces.find('\0')));
}

/// The extension of a filter, with its dot; empty for an index that is none.
std::string extension_of(const std::string& filter, int index)
{
    if (index < 1 || index > static_cast<int>(document_formats.size()))
        return "";
    std::string pattern = element(filter, 2 * index - 1);
    if (pattern.starts_with("*."))
        pattern.erase(0, 2);
    return "." + pattern;
}

std::string FilterExtension(const std::string& filter, int index)
{
    ChosenFormat = static_cast<std::uint8_t>(index);
    return extension_of(filter, index);
}

/// The extension comes behind the name as typed, whatever that ends in.
std::string full_path(const std::string& typed, const std::string& extension)
{
    return std::string(trim_blanks(typed)) + extension;
}

std::string desktop_folder()
{
    std::string folder;
    attempt([&] { folder = ShellObject->SpecialFolders("Desktop"); });
    return folder;
}

/// The full path of the file to write; empty if the user cancelled.
std::string ShowSaveDialog(const std::string& title, std::string& filter, const std::string& name)
{
    std::ranges::replace(filter, '|', '\0');
    const auto target = [filter](const std::string& path, int index) {
        return full_path(path, extension_of(filter, index));
    };
    const auto chosen = platform.save_dialog->GetSaveFileNameA({.title = title,
                                                                .filter = filter,
                                                                .filter_index = 1,
                                                                .file = name,
                                                                .initial_dir = desktop_folder(),
                                                                .target = target});
    if (!chosen)
        return "";
    return full_path(chosen->path, FilterExtension(filter, chosen->filter_index));
}

void save()
{
    std::string filter = Trad[Text::RtfFilter] + Trad[Text::HtmlFilter] + Trad[Text::BbCodeFilter] +
                         Trad[Text::PlainTextFilter];
    const std::string path = ShowSaveDialog(Trad[Text::SaveReport], filter, Trad[Text::ReportName]);
    const auto documents = report_documents();
    if (path.empty() || ChosenFormat < 1 || ChosenFormat > documents.size())
        return;
    platform.file_writer->replace(path, ansi_file(*documents[ChosenFormat - 1U]));
}

/// Nothing tells whether the file was written. A dialog that fades out has no documents any more.
void BSave_Click()
{
    if (!F2.TUnload.Enabled)
        attempt(save);
}

constexpr Handler handlers[] = {OSTRELUM_ON(BSave_Click)};

} // namespace

const HandlerTable save_handlers{handlers};

std::string ansi_file(const std::string& document)
{
    return platform.ansi_code_page->encoded(document) + crlf;
}

} // namespace ostrelum::inline report
