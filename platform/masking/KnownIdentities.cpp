#include "platform/masking/KnownIdentities.h"

#include "sources/Ascii.h"

#include <algorithm>
#include <array>

namespace ostrelum::inline masking {
namespace {

/// Names that many give to accounts, machines and volumes, and that device names have as words.
constexpr std::array<std::string_view, 44> plain_words{
    "admin",    "administrator", "audio",    "backup",   "battery",  "bluetooth", "button",
    "card",     "control",       "data",     "desktop",  "device",   "disk",      "generic",
    "guest",    "hidden",        "input",    "keyboard", "laptop",   "linux",     "localhost",
    "mouse",    "name",          "none",     "noserial", "notebook", "pen",       "power",
    "receiver", "recovery",      "serial",   "server",   "swap",     "system",    "tablet",
    "test",     "touchpad",      "trackpad", "usb",      "user",     "wheel",     "windows",
    "wireless", "workgroup"};
static_assert(std::ranges::is_sorted(plain_words));

constexpr std::size_t shortest = 3;
/// Words of one identity; the text behind them is not looked at.
constexpr int most_words = 16;

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

bool is_hex(char c)
{
    return is_digit(c) || (c >= 'a' && c <= 'f');
}

/// Letters and digits in lower case, and all that is no ASCII.
bool is_word(char c)
{
    return is_digit(c) || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

std::string lower_case(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), lower_ascii);
    return lower;
}

/// Without the signs round it.
std::string_view core_of(std::string_view lower)
{
    while (!lower.empty() && !is_word(lower.front()))
        lower.remove_prefix(1);
    while (!lower.empty() && !is_word(lower.back()))
        lower.remove_suffix(1);
    return lower;
}

/// What is no word and no figure that means something else: a serial number.
bool is_unmistakable(std::string_view identity)
{
    constexpr std::size_t shortest_mix = 6;
    constexpr auto shortest_number = 8;
    const auto digits = std::ranges::count_if(identity, is_digit);
    const bool letters =
        std::ranges::any_of(identity, [](char c) { return is_word(c) && !is_digit(c); });
    return letters ? digits > 0 && identity.size() >= shortest_mix : digits >= shortest_number;
}

/// Whether the text begins with hexadecimal digits in place of each "x" of a form, and its signs.
bool has_form(std::string_view lower, std::string_view form)
{
    return lower.size() >= form.size() &&
           std::equal(form.begin(), form.end(), lower.begin(),
                      [](char wanted, char c) { return wanted == 'x' ? is_hex(c) : wanted == c; });
}

constexpr std::array<std::string_view, 3> forms{"xx:xx:xx:xx:xx:xx", "xx-xx-xx-xx-xx-xx",
                                                "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx"};

bool ends_word(std::string_view lower, std::size_t at)
{
    return at == lower.size() || !is_word(lower[at]);
}

} // namespace

void KnownIdentities::add(std::string_view identity)
{
    const std::string lower = lower_case(identity);
    const std::string_view core = core_of(lower);
    if (core.size() < shortest || is_pseudonym(identity) || is_kernel_device(core) ||
        is_common_folder(core) || std::ranges::binary_search(plain_words, core))
        return;
    all_.emplace(core);
    longest_ = std::max(longest_, core.size());
}

void KnownIdentities::add_person(std::string_view name)
{
    add(name);
    while (!name.empty()) {
        const std::string_view word = name.substr(0, name.find(' '));
        add(word);
        name.remove_prefix(std::min(word.size() + 1, name.size()));
    }
}

/// The length of the longest identity that begins there; 0 for none.
std::size_t KnownIdentities::length_at(std::string_view lower, std::size_t at, Writer writer) const
{
    const std::string_view rest = lower.substr(at);
    for (const std::string_view form : forms) {
        if (has_form(rest, form) && ends_word(rest, form.size()))
            return form.size();
    }
    std::size_t length = 0;
    int words = 0;
    for (std::size_t end = 1; end <= std::min(longest_, rest.size()) && words < most_words; ++end) {
        if (!is_word(rest[end - 1]) || !ends_word(rest, end))
            continue;
        ++words;
        const std::string_view candidate = rest.substr(0, end);
        const auto next = all_.lower_bound(candidate);
        if (next == all_.end() || !next->starts_with(candidate))
            break;
        if (*next == candidate && (writer == Writer::Person || is_unmistakable(candidate)))
            length = end;
    }
    return length;
}

std::string KnownIdentities::hidden_in(std::string_view text, Writer writer,
                                       Pseudonyms& given) const
{
    if (text.find_first_not_of("0123456789 \t\r\n") == text.npos)
        return std::string(text);
    const std::string lower = lower_case(text);
    std::string result;
    for (std::size_t at = 0; at < lower.size();) {
        const bool starts = is_word(lower[at]) && (at == 0 || !is_word(lower[at - 1]));
        const std::size_t length = starts ? length_at(lower, at, writer) : 0;
        if (length > 0)
            result += given.of(std::string(text.substr(at, length)));
        else
            result += text[at];
        at += std::max<std::size_t>(length, 1);
    }
    return result;
}

} // namespace ostrelum::inline masking
