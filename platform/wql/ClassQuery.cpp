#include "platform/wql/ClassQuery.h"

#include "platform/system/Failure.h"
#include "platform/wql/WqlCondition.h"
#include "sources/Utf8.h"

#include <optional>
#include <string>
#include <vector>

namespace ostrelum::inline wql {
namespace {

using Properties = std::span<const PropertySchema>;

std::size_t index_of(const PropertySchema& property, Properties properties)
{
    return static_cast<std::size_t>(&property - properties.data());
}

/// For each property of the schema, whether the query gives it.
std::vector<bool> selection(const WqlQuery& query, Properties properties)
{
    std::vector<bool> selected(properties.size(), query.properties.empty());
    for (const std::string& name : query.properties) {
        const PropertySchema* property = find_named(properties, name);
        if (!property)
            throw Failure("no such property: " + name);
        selected[index_of(*property, properties)] = true;
    }
    for (const PropertySchema& property : properties) {
        if (property.key == Key::Yes)
            selected[index_of(property, properties)] = true;
    }
    return selected;
}

/// The properties of one object, read when they are first asked for.
class ObjectValues {
public:
    ObjectValues(Properties properties, const PropertyReader& reader)
        : properties_(properties), reader_(reader), known_(properties.size())
    {
    }

    const Value& at(std::size_t index)
    {
        if (!known_[index])
            known_[index] = as_delivered(reader_(index), properties_[index].type);
        return *known_[index];
    }

private:
    /// The service delivers 64-bit numbers as text. Texts that are paths may hold any character,
    /// and what shows them has one line for each.
    static Value as_delivered(const Value& value, CimType type)
    {
        if (value.is_text())
            return made_one_line(value.text());
        return type == CimType::UInt64 && value.is_whole() ? value.text() : value;
    }

    Properties properties_;
    const PropertyReader& reader_;
    std::vector<std::optional<Value>> known_;
};

} // namespace

ResultSet run_query(const WqlQuery& query, const ClassSchema& schema, const ObjectSource& objects)
{
    const Properties properties = schema.properties;
    const std::vector<bool> selected = selection(query, properties);
    std::optional<Condition> condition;
    if (query.condition)
        condition = typed_condition(*query.condition, schema);

    ResultSet result;
    objects([&](const PropertyReader& reader) {
        ObjectValues values(properties, reader);
        const auto by_name = [&](std::string_view name) {
            return values.at(index_of(*find_named(properties, name), properties));
        };
        if (condition && truth_of(*condition, by_name) != true)
            return;
        std::vector<Instance::Property> taken;
        for (std::size_t index = 0; index < properties.size(); ++index) {
            if (selected[index])
                taken.emplace_back(properties[index].name, values.at(index));
        }
        result.emplace_back(std::move(taken));
    });
    return result;
}

} // namespace ostrelum::inline wql
