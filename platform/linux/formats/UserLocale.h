#pragma once

#include <ctime>
#include <langinfo.h>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include <locale.h>

namespace ostrelum::linux_platform {

/// The regional forms of one locale of the C library, without changing the locale of the process.
class UserLocale {
public:
    /// The neutral locale "C".
    UserLocale();
    /// Nothing if no locale of that name is installed.
    static std::optional<UserLocale> named(const std::string& name);

    /// A text of the locale as its own bytes.
    std::string own_text(nl_item item) const;
    /// A text of the locale in UTF-8.
    std::string text(nl_item item) const;
    /// What strftime makes of `format`, which is in the locale's own character set, in UTF-8. Empty
    /// if it is longer than 255 bytes.
    std::string formatted(const std::string& format, const std::tm& moment) const;

private:
    explicit UserLocale(locale_t handle);
    std::string to_utf8(const std::string& own) const;

    std::shared_ptr<std::remove_pointer_t<locale_t>> handle_;
};

} // namespace ostrelum::linux_platform
