#pragma once

#include "sources/ManagementService.h"
#include "tests/Split.h"

#include <algorithm>
#include <fstream>

namespace ostrelum {

/// What a file of the tests says that a service has: a line for a query or a class, and below it,
/// behind a tab, one for each object. A property without "=" is null, True and False are truths.
using RecordedObjects = std::vector<std::pair<std::string, ResultSet>>;

inline Instance recorded_object(const std::string& line, char between = '\t')
{
    std::vector<Instance::Property> properties;
    for (const std::string& column : split(line, between)) {
        const auto sign = column.find('=');
        Value value;
        if (sign != std::string::npos)
            value = column.substr(sign + 1);
        if (value == Value("True") || value == Value("False"))
            value = value.as_bool();
        properties.emplace_back(column.substr(0, sign), value);
    }
    return Instance(std::move(properties));
}

inline RecordedObjects recorded_objects(const std::string& name)
{
    RecordedObjects recorded;
    std::ifstream file(std::string(OSTRELUM_TESTS_DIR "/") + name);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('\t'))
            recorded.back().second.push_back(recorded_object(line.substr(1)));
        else
            recorded.emplace_back(line, ResultSet());
    }
    return recorded;
}

/// Changes properties of the first object.
inline void change(ResultSet& objects, const std::vector<Instance::Property>& changes)
{
    auto properties = objects.at(0).properties();
    for (const auto& [name, value] : changes)
        std::ranges::find(properties, name, &Instance::Property::first)->second = value;
    objects[0] = Instance(std::move(properties));
}

} // namespace ostrelum
