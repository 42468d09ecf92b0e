#include "console/Json.h"

#include <nlohmann/json.hpp>

namespace ostrelum::console {
namespace {

using Json = nlohmann::ordered_json;

Json value_of(const Value& value)
{
    if (value.is_null())
        return nullptr;
    if (value.is_boolean())
        return value.as_bool();
    if (value.is_whole())
        return static_cast<std::int64_t>(value.number());
    if (value.is_real())
        return value.number();
    if (const auto* items = value.items()) {
        Json array = Json::array();
        for (const Value& item : *items)
            array.push_back(value_of(item));
        return array;
    }
    return value.text();
}

} // namespace

std::string as_json(const ResultSet& objects)
{
    Json array = Json::array();
    for (const Instance& object : objects) {
        Json row = Json::object();
        for (const auto& [name, value] : object.properties())
            row[name] = value_of(value);
        array.push_back(std::move(row));
    }
    return array.dump(2, ' ', false, Json::error_handler_t::replace);
}

} // namespace ostrelum::console
