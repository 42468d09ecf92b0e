#include "report/Body.h"

#include "report/ReportForm.h"
#include "sources/Texts.h"

namespace ostrelum::inline report {

void write_heading(const std::string& title)
{
    F2.Tb += "^a" + title + "^b" + crlf;
}

void write_rows(std::initializer_list<ReportRow> rows)
{
    for (const ReportRow& row : rows) {
        F2.Tb += (&row == rows.begin() ? "^c" : "^f") + row.label + "^d" + row.value;
        F2.Tb += &row + 1 == rows.end() ? "^g" : "^e";
        F2.Tb += crlf;
    }
}

std::string known(const std::string& value)
{
    return value.empty() ? Trad[Text::Unknown] : value;
}

} // namespace ostrelum::inline report
