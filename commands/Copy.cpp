#include "commands/Commands.h"
#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "frame/MainForm.h"
#include "frame/PageTable.h"
#include "sources/Texts.h"

#include <string>

/// Copying reads the labels as they stand on the page, so the clipboard gets what the user sees.
namespace ostrelum::inline commands {
namespace {

std::string row_text(int row)
{
    return F1.LT(row).Caption + F1.L(row).Caption;
}

/// A row as Copy all takes it.
std::string line_text(const PageEntry& page, int row)
{
    switch (page.row_kind(row)) {
    case RowKind::Value: return row_text(row);
    case RowKind::Heading: return F1.LT(row).Caption + ":";
    case RowKind::Gap:
    case RowKind::Empty: break;
    }
    return "";
}

std::string page_text()
{
    std::string text = F1.Titulo.Caption + crlf + crlf;
    const PageEntry* page = page_on_show();
    const std::size_t rows = page ? page->rows.size() : 0;
    for (int row = 1; row <= static_cast<int>(rows); ++row)
        text += line_text(*page, row) + crlf;
    return text;
}

void Copy_Click()
{
    attempt([] {
        platform.clipboard->Clear();
        if (F1.CopyRow >= 1 && F1.CopyRow <= F1.LT.count)
            platform.clipboard->SetText(row_text(F1.CopyRow));
    });
}

void CopyAll_Click()
{
    attempt([] {
        platform.clipboard->Clear();
        platform.clipboard->SetText(page_text());
    });
}

constexpr Handler handlers[] = {OSTRELUM_ON(Copy_Click), OSTRELUM_ON(CopyAll_Click)};

} // namespace

const HandlerTable copy_handlers{handlers};

} // namespace ostrelum::inline commands
