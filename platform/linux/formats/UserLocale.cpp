#include "platform/linux/formats/UserLocale.h"

#include "sources/Utf8.h"

#include <array>
#include <iconv.h>

namespace ostrelum::linux_platform {

namespace {

/// The text from a character set in UTF-8, as far as it can be converted; as it is if the C library
/// does not know the set.
std::string converted(std::string text, const std::string& set)
{
    iconv_t converter = ::iconv_open("UTF-8", set.c_str());
    // NOLINTNEXTLINE(performance-no-int-to-ptr): that is how iconv reports failure.
    if (converter == reinterpret_cast<iconv_t>(-1))
        return text;
    std::string output(text.size() * 4 + 1, '\0');
    char* from = text.data();
    char* to = output.data();
    std::size_t left = text.size();
    std::size_t room = output.size();
    ::iconv(converter, &from, &left, &to, &room);
    ::iconv_close(converter);
    output.resize(output.size() - room);
    return output;
}

} // namespace

UserLocale::UserLocale() : UserLocale(::newlocale(LC_ALL_MASK, "C", nullptr)) {}

UserLocale::UserLocale(locale_t handle) : handle_(handle, ::freelocale) {}

std::optional<UserLocale> UserLocale::named(const std::string& name)
{
    constexpr int kinds = LC_CTYPE_MASK | LC_TIME_MASK | LC_NUMERIC_MASK;
    const locale_t handle = ::newlocale(kinds, name.c_str(), nullptr);
    if (handle == nullptr)
        return std::nullopt;
    return UserLocale(handle);
}

std::string UserLocale::own_text(nl_item item) const
{
    return ::nl_langinfo_l(item, handle_.get());
}

std::string UserLocale::text(nl_item item) const
{
    return to_utf8(own_text(item));
}

std::string UserLocale::formatted(const std::string& format, const std::tm& moment) const
{
    std::array<char, 256> text = {};
    const std::size_t length =
        ::strftime_l(text.data(), text.size(), format.c_str(), &moment, handle_.get());
    return to_utf8(std::string(text.data(), length));
}

std::string UserLocale::to_utf8(const std::string& own) const
{
    const std::string set = own_text(CODESET);
    // The neutral locale passes every byte on: what is UTF-8 in a format stays so.
    const bool as_it_is = set == "ANSI_X3.4-1968" || set == "UTF-8";
    return made_valid_utf8(as_it_is ? own : converted(own, set));
}

} // namespace ostrelum::linux_platform
