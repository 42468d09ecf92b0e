#include "platform/masking/MaskedService.h"

#include "platform/wql/Wql.h"

#include <utility>
#include <vector>

namespace ostrelum::inline masking {

MaskedService::MaskedService(std::unique_ptr<ManagementService> service,
                             const std::string& own_account)
    : service_(std::move(service))
{
    accounts_.of(own_account);
}

Value MaskedService::masked(const Value& value, Identity identity)
{
    if (value.is_null() || value.text().empty())
        return value;
    switch (identity) {
    case Identity::None: return value;
    case Identity::Value: return std::string(hidden_text);
    case Identity::Account: return accounts_.of(value.text());
    case Identity::Path: return folders_.of_path(value.text());
    }
    return {};
}

ResultSet MaskedService::ExecQuery(std::string_view wql)
{
    const ResultSet answers = service_->ExecQuery(wql);
    const auto properties = schema_of(parse_wql(wql).class_name).properties;
    ResultSet result;
    for (const Instance& instance : answers) {
        std::vector<Instance::Property> taken;
        for (const auto& [name, value] : instance.properties())
            taken.emplace_back(name, masked(value, find_named(properties, name)->identity));
        result.emplace_back(std::move(taken));
    }
    return result;
}

} // namespace ostrelum::inline masking
