#include "sources/Sizes.h"

#include "sources/Characters.h"
#include "sources/NumberText.h"

#include <array>
#include <cmath>

namespace ostrelum::inline sources {
namespace {

constexpr std::array<std::string_view, 4> units{" KB", " MB", " GB", " TB"};

/// How a size of a certain number of digits is written.
struct Cell {
    enum Form { None, Plain, Whole, Cut } form = None;
    /// Index of the unit it is given in, for Whole and Cut.
    std::size_t unit = 0;
    /// Characters that are kept, for Cut.
    std::size_t kept = 0;
};

struct Row {
    SizeUse use;
    /// Index of the unit in which the number comes.
    std::size_t base;
    /// The forms for 1 to 10 digits.
    std::array<Cell, 10> cells;
};

constexpr Cell none;
constexpr Cell plain{Cell::Plain};
constexpr Cell whole{Cell::Whole, 1};

constexpr Cell mb(std::size_t kept)
{
    return {Cell::Cut, 1, kept};
}
constexpr Cell gb(std::size_t kept)
{
    return {Cell::Cut, 2, kept};
}
constexpr Cell tb(std::size_t kept)
{
    return {Cell::Cut, 3, kept};
}

// clang-format off
constexpr auto rows = std::to_array<Row>({
    //                                1      2      3      4      5      6      7      8      9      10 digits
    {SizeUse::SummaryFree,       1, {none,  plain, plain, gb(3), gb(4), gb(5), tb(4), none,  none,  none}},
    {SizeUse::SummaryFreeBeyond, 1, {plain, none,  none,  none,  none,  none,  none,  tb(5), tb(6), tb(7)}},
    {SizeUse::DriveCapacity,     0, {none,  none,  none,  whole, whole, whole, gb(3), gb(4), gb(5), gb(6)}},
    {SizeUse::DriveFree,         0, {none,  none,  plain, whole, whole, whole, gb(3), gb(4), gb(5), gb(6)}},
    {SizeUse::DriveUsed,         0, {plain, plain, plain, whole, whole, whole, gb(3), gb(4), gb(5), gb(6)}},
    {SizeUse::RemovableCapacity, 0, {none,  none,  none,  none,  mb(4), mb(5), gb(4), gb(5), gb(6), tb(4)}},
    {SizeUse::RemovableFree,     0, {plain, plain, plain, mb(3), mb(4), mb(5), gb(4), gb(5), gb(6), tb(4)}},
    {SizeUse::RemovableUsed,     0, {plain, plain, plain, mb(3), mb(4), mb(5), gb(4), gb(5), gb(6), tb(4)}},
    {SizeUse::DiscCapacity,      0, {plain, plain, plain, mb(3), mb(4), mb(5), gb(4), gb(5), none,  none}},
});
// clang-format on

constexpr bool in_order_of_use()
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].use != static_cast<SizeUse>(i))
            return false;
    }
    return true;
}
static_assert(in_order_of_use());

/// The size in a larger unit.
double in_unit(const Row& row, const Cell& cell, std::int32_t size)
{
    return std::ldexp(size, -10 * static_cast<int>(cell.unit - row.base));
}

} // namespace

std::string SizeWhole(std::int32_t megabytes)
{
    const std::string text = WholeText(megabytes);
    return text.size() <= 3 ? text + " MB" : WholeMegabytes(megabytes) + " GB";
}

std::string SizeByDigits(SizeUse use, std::int32_t size, std::string_view decimal_sign)
{
    const Row& row = rows.at(static_cast<std::size_t>(use));
    const std::string text = WholeText(size);
    const Cell cell = text.size() <= row.cells.size() ? row.cells[text.size() - 1] : none;
    switch (cell.form) {
    case Cell::None: return "";
    case Cell::Plain: return text + std::string(units[row.base]);
    case Cell::Whole:
        return WholeText(rounded_down(in_unit(row, cell, size))) + std::string(units[cell.unit]);
    case Cell::Cut:
        return first_characters(RealText(in_unit(row, cell, size), decimal_sign), cell.kept) +
               std::string(units[cell.unit]);
    }
    return "";
}

std::string WholeMegabytes(std::int32_t kilobytes)
{
    return WholeText(rounded_down(kilobytes / 1024.0));
}

} // namespace ostrelum::inline sources
