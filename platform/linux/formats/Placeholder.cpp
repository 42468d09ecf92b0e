#include "platform/linux/formats/Placeholder.h"

#include "platform/linux/text/Text.h"
#include "sources/Ascii.h"

#include <algorithm>

namespace ostrelum::linux_platform {
namespace {

/// What firmware and udev write for a text that nobody filled in, compared without regard to ASCII
/// case.
constexpr std::string_view placeholders[] = {
    "(none)",
    "<BAD INDEX>",
    "<OUT OF SPEC>",
    "[Empty]",
    "$(DEFAULT_STRING)",
    "01234567",
    "012345678",
    "0123456789",
    "12345678",
    "123456789",
    "1234567890",
    "Base Board Serial Number",
    "BSN12345678901234567",
    "Chassis Serial Number",
    "Default",
    "Default string",
    "Empty",
    "INVALID",
    "N/A",
    "No Asset Information",
    "None",
    "Not Applicable",
    "Not Available",
    "Not Provided",
    "Not Specified",
    "NULL",
    "O.E.M.",
    "OEM",
    "OEM_Define1",
    "Product Name",
    "Serial Number",
    "System Manufacturer",
    "System Name",
    "System Product Name",
    "System Serial Number",
    "System Version",
    "SystemSerialNumb",
    "Type2 - Board Manufacturer",
    "Type2 - Board Product Name",
    "Type2 - Board Product Name1",
    "Type2 - Board Serial Number",
    "Type2 - Board Vendor Name1",
    "Undefined",
    "Unknow",
    "Unknown",
};

/// These go on in many ways.
constexpr std::string_view beginnings[] = {"To be filled", "To be filed"};

/// Fewer equal characters may well be meant.
constexpr std::size_t shortest_row = 4;

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool is_letter_or_digit(char c)
{
    const char lower = lower_ascii(c);
    return (lower >= 'a' && lower <= 'z') || is_digit(c);
}

bool is_one_character(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(text.front()) == std::string_view::npos;
}

/// A row of one letter such as "xxxx", signs alone such as "-" and "...".
bool is_filling(std::string_view text)
{
    const auto is_sign = [](char c) { return c > 0 && !is_letter_or_digit(c); };
    if (std::ranges::all_of(text, is_sign))
        return true;
    return is_one_character(text) && !is_digit(text.front()) && text.size() >= shortest_row;
}

/// Zeros, a row of one digit such as "1111".
bool is_row_of_digits(std::string_view text)
{
    return is_one_character(text) &&
           (text.front() == '0' || (is_digit(text.front()) && text.size() >= shortest_row));
}

} // namespace

bool is_placeholder(std::string_view text)
{
    text = trimmed_space(text);
    const auto is_text = [&](std::string_view each) { return same_ascii_letters(each, text); };
    const auto begins = [&](std::string_view each) {
        return same_ascii_letters(each, text.substr(0, each.size()));
    };
    return std::ranges::any_of(placeholders, is_text) || std::ranges::any_of(beginnings, begins) ||
           (!text.empty() && is_filling(text));
}

std::optional<std::string> meaningful_text(std::string_view raw)
{
    return is_placeholder(raw) ? std::nullopt : text_or_none(raw);
}

std::optional<std::string> meaningful_serial(std::string_view raw)
{
    return is_row_of_digits(trimmed_space(raw)) ? std::nullopt : meaningful_text(raw);
}

} // namespace ostrelum::linux_platform
