#pragma once

#include "frame/MainForm.h"

#include <string>
#include <vector>

/// What a test reads off the page, and what it leaves there before a collector runs.
namespace ostrelum {

/// The title and the value of a row, as they stand behind each other.
inline std::string shown(int row)
{
    return F1.LT(row).Caption + F1.L(row).Caption;
}

inline std::vector<std::string> shown(int first_row, int last_row)
{
    std::vector<std::string> texts;
    for (int row = first_row; row <= last_row; ++row)
        texts.push_back(shown(row));
    return texts;
}

/// Leaves all rows as another page might: texts and tooltips everywhere, headings on rows 1 and 8.
inline void leave_another_page()
{
    for (int row = 1; row <= 12; ++row) {
        F1.LT(row).Caption = F1.LT(row).ToolTipText = "old title";
        F1.L(row).Caption = "kept";
        F1.L(row).ToolTipText = "old tooltip";
    }
    F1.LT(1).Font.Italic = F1.LT(8).Font.Italic = true;
}

/// Bit i for each row i whose title has a tooltip.
inline int rows_with_title_tooltips()
{
    int rows = 0;
    for (int row = 1; row <= 12; ++row)
        rows |= F1.LT(row).ToolTipText.empty() ? 0 : 1 << row;
    return rows;
}

} // namespace ostrelum
