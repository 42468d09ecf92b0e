#pragma once

#include "platform/system/Failure.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace ostrelum::inline sources {

/// A value of the management service: null, boolean, whole number, real number, text (UTF-8) or a
/// list of these. 64-bit numbers and datetimes arrive as text, as the service delivers them. A list
/// cannot be read as anything else: its conversions throw Failure.
class Value {
public:
    Value() = default;
    Value(bool flag) : held_(flag) {}
    template <std::integral Whole>
    requires(!std::same_as<Whole, bool>) Value(Whole whole)
        : held_(static_cast<std::int64_t>(whole))
    {
    }
    Value(double real) : held_(real) {}
    Value(std::string text) : held_(std::move(text)) {}
    Value(const char* text) : held_(std::string(text)) {}
    explicit Value(std::vector<Value> items) : held_(std::move(items)) {}

    bool is_null() const { return std::holds_alternative<std::monostate>(held_); }
    bool is_boolean() const { return std::holds_alternative<bool>(held_); }
    bool is_whole() const { return std::holds_alternative<std::int64_t>(held_); }
    bool is_real() const { return std::holds_alternative<double>(held_); }
    bool is_text() const { return std::holds_alternative<std::string>(held_); }

    /// The values of a list; nullptr for anything else.
    const std::vector<Value>* items() const { return std::get_if<std::vector<Value>>(&held_); }

    /// As text: numbers in their shortest decimal form with ".", booleans "True" and "False".
    /// Throws Failure on null.
    std::string text() const;

    /// As a real number: text must hold a decimal number, blanks round it allowed; true is -1.
    /// Throws Failure on null and on other text.
    double number() const;

    /// As a signed 32-bit whole number, rounded to nearest with ties to even. Throws Failure as
    /// number() does, and for what 32 bits cannot hold.
    std::int32_t as_int32() const;

    /// As a boolean: a number other than 0, or the texts "True" and "False" in any case. Throws
    /// Failure on null and on other text.
    bool as_bool() const;

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, std::vector<Value>> held_;
};

} // namespace ostrelum::inline sources
