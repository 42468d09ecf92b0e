#include "commands/Commands.h"
#include "figures/PassOver.h"
#include "figures/Platform.h"
#include "frame/MainForm.h"

#include <array>
#include <string>

/// Copying reads the labels as they stand on the page, so the clipboard gets what the user sees.
namespace ostrelum::inline commands {
namespace {

const std::string CRLF = "\r\n";

std::string row_text(int row)
{
    return F1.LT(row).Caption + F1.L(row).Caption;
}

std::string rows_text(int from, int to)
{
    std::string text;
    for (int row = from; row <= to; ++row)
        text += row_text(row) + CRLF;
    return text;
}

/// The Summary page has two headings; the gaps around them are left out.
std::string summary_text()
{
    const auto heading = [](int row) { return F1.LT(row).Caption + ":" + CRLF + CRLF; };
    return heading(1) + rows_text(3, 6) + CRLF + heading(8) + rows_text(10, 12);
}

/// By section: the last row that is copied.
constexpr std::array<int, 14> last_rows{0, 0, 10, 6, 11, 9, 8, 9, 5, 11, 8, 8, 7, 12};

/// Rows whose place is taken by a line on the page: an empty line, whatever the labels hold.
bool is_gap(int row)
{
    switch (F1.Seccion) {
    case 9: return row == 5;
    case 10: return row == 3;
    case 13: return row == 4 || row == 7;
    default: return false;
    }
}

std::string page_text()
{
    std::string text = F1.Titulo.Caption + CRLF + CRLF;
    if (F1.Seccion == 1)
        return text + summary_text();
    const int last = F1.Seccion < last_rows.size() ? last_rows[F1.Seccion] : 0;
    for (int row = 1; row <= last; ++row)
        text += (is_gap(row) ? std::string() : row_text(row)) + CRLF;
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

constexpr Handler rows[] = {OSTRELUM_ON(Copy_Click), OSTRELUM_ON(CopyAll_Click)};

} // namespace

const HandlerTable copy_handlers{rows};

} // namespace ostrelum::inline commands
