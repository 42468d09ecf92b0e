#pragma once

#include "figures/Text.h"
#include "frame/PictureForm.h"

#include <cstdint>
#include <string_view>

/// All that the program knows about each page.
namespace ostrelum::inline frame {

/// What stands in a row of a page. Only a value can be copied alone; Copy all takes headings too,
/// and an empty line for a gap, whatever its labels hold.
enum class RowKind { Empty, Heading, Gap, Value };

/// A picture of F6; nullptr for none.
using StoredPicture = PictureBox PictureForm::*;

/// The picture of a page, and that of the alert at its foot.
struct PagePictures {
    StoredPicture page = nullptr;
    StoredPicture alert = nullptr;
};

struct PageEntry {
    /// What MainForm::Seccion is while the page is open.
    std::uint8_t section;
    Text title;
    /// Queries anew and writes the page; nullptr for a panel.
    void (*collect)() = nullptr;
    /// The rows from the first on: 'H' a heading, 'V' a title and a value, '-' a gap. The others
    /// are empty.
    std::string_view rows;
    PagePictures pictures;
    /// Whether the page lists media. It has another face while there are none.
    bool lists_media = false;
    PagePictures pictures_without_media = {};
    /// Brings the figures that change up to date, once a second; nullptr for a page without such.
    void (*tick)() = nullptr;

    constexpr RowKind row_kind(int row) const
    {
        if (row < 1 || row > static_cast<int>(rows.size()))
            return RowKind::Empty;
        switch (rows[static_cast<std::size_t>(row - 1)]) {
        case 'H': return RowKind::Heading;
        case '-': return RowKind::Gap;
        default: return RowKind::Value;
        }
    }
    constexpr bool is_panel() const { return collect == nullptr; }
};

/// The page of a section or panel; nullptr for a number that is none.
const PageEntry* find_page(std::uint8_t section);

/// The page on show; nullptr until the first section has run.
const PageEntry* page_on_show();

/// Whether the page on show lists media and found none.
bool media_missing();

} // namespace ostrelum::inline frame
