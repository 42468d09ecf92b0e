#include "platform/masking/MaskedService.h"

#include "platform/wql/Wql.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ostrelum::inline masking {

MaskedService::MaskedService(std::unique_ptr<ManagementService> service,
                             const std::string& own_account, KnownIdentities known)
    : service_(std::move(service)), known_(std::move(known))
{
    accounts_.of(own_account);
}

/// What the machine tells of itself, asked for once: any text may mention it.
void MaskedService::learn()
{
    if (learnt_)
        return;
    learnt_ = true;
    for (const ClassSchema& schema : class_schemas())
        learn(schema);
}

void MaskedService::learn(const ClassSchema& schema)
{
    std::string marked;
    for (const PropertySchema& property : schema.properties) {
        if (property.identity != Identity::None && property.identity != Identity::Wording)
            marked += (marked.empty() ? "" : ", ") + std::string(property.name);
    }
    if (marked.empty())
        return;
    try {
        for (const Instance& instance :
             service_->ExecQuery("Select " + marked + " from " + std::string(schema.name))) {
            for (const auto& [name, value] : instance.properties()) {
                // A service may add keys that nobody asked for.
                if (const PropertySchema* known = find_named(schema.properties, name))
                    note(value, known->identity);
            }
        }
    } catch (const Failure&) {
        // A class that cannot be asked shows nothing either.
    }
}

void MaskedService::note(const Value& value, Identity identity)
{
    if (value.is_null() || !value.is_text())
        return;
    const std::string text = value.text();
    switch (identity) {
    case Identity::None:
    case Identity::Wording: return;
    case Identity::Person: return known_.add_person(text);
    case Identity::Value:
    case Identity::Account: return known_.add(text);
    case Identity::Path:
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find('/', at), text.size());
            known_.add(text.substr(at, end - at));
            at = end + 1;
        }
    }
}

Value MaskedService::masked(const Value& value, Identity identity)
{
    if (value.is_null() || (value.is_text() && value.text().empty()))
        return value;
    if (value.items())
        return std::string(hidden_text);
    const auto hidden_in = [&](Writer writer) {
        return value.is_text() ? Value(known_.hidden_in(value.text(), writer, others_)) : value;
    };
    switch (identity) {
    case Identity::None: return hidden_in(Writer::Maker);
    case Identity::Value:
    case Identity::Person: return std::string(hidden_text);
    case Identity::Account: return accounts_.of(value.text());
    case Identity::Path: return folders_.of_path(value.text());
    case Identity::Wording: return hidden_in(Writer::Person);
    }
    return {};
}

/// What nobody has looked at may tell anything: only its numbers and truths are shown.
Value MaskedService::masked_unknown(const Value& value)
{
    return value.is_text() || value.items() ? masked(value, Identity::Value) : value;
}

ResultSet MaskedService::ExecQuery(std::string_view wql)
{
    const ResultSet answers = service_->ExecQuery(wql);
    const auto properties = schema_of(parse_wql(wql).class_name).properties;
    learn();
    ResultSet result;
    for (const Instance& instance : answers) {
        std::vector<Instance::Property> taken;
        for (const auto& [name, value] : instance.properties()) {
            const PropertySchema* known = find_named(properties, name);
            taken.emplace_back(name,
                               known ? masked(value, known->identity) : masked_unknown(value));
        }
        result.emplace_back(std::move(taken));
    }
    return result;
}

} // namespace ostrelum::inline masking
