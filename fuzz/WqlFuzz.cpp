#include "fuzz/Target.h"
#include "platform/wql/ClassQuery.h"

#include <array>
#include <utility>

using namespace ostrelum;

namespace {

constexpr std::size_t row_count = 6;
using Rows = std::vector<std::size_t>;

std::string lowered(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return lower;
}

/// A query without index, order or haste: every part is decided for every row.
struct NaiveQuery {
    const WqlQuery& query;
    const ClassSchema& schema;

    /// Values of every kind that the type has, and null.
    Value cell(std::size_t row, std::size_t column) const
    {
        const std::size_t which = (row + column) % row_count;
        if (which == 0)
            return {};
        switch (schema.properties[column].type) {
        case CimType::Boolean: return which % 2 == 0;
        case CimType::String:
        case CimType::DateTime: return std::array{"", "a", "B", "C:", "12", "\xC3\xA9"}[which];
        case CimType::UInt64: return std::array{"", "0", "12", "3", "4096", "9000000000"}[which];
        default: return std::array{0, 0, 12, 3, 4, 65535}[which];
        }
    }

    std::size_t column_of(std::string_view name) const
    {
        for (std::size_t column = 0; column < schema.properties.size(); ++column) {
            if (lowered(schema.properties[column].name) == lowered(name))
                return column;
        }
        throw Failure("no such property");
    }

    /// Whether the cell is less than the literal, and whether it is more.
    static std::pair<bool, bool> order(const Value& value, const Value& literal, CimType type)
    {
        if (type == CimType::Boolean)
            return {value.as_bool() < literal.as_bool(), value.as_bool() > literal.as_bool()};
        if (type == CimType::String || type == CimType::DateTime) {
            const int found = lowered(value.text()).compare(lowered(literal.text()));
            return {found<0, found> 0};
        }
        return {value.number() < literal.number(), value.number() > literal.number()};
    }

    /// 1 for true, -1 for false, 0 for neither.
    int truth(const Condition& condition, std::size_t row) const
    {
        if (condition.kind == Condition::Kind::Compare)
            return compared(condition, row);
        int least = 1, most = -1;
        for (const Condition& part : condition.parts) {
            least = std::min(least, truth(part, row));
            most = std::max(most, truth(part, row));
        }
        if (condition.kind == Condition::Kind::Not)
            return -least;
        return condition.kind == Condition::Kind::And ? least : most;
    }

    int compared(const Condition& condition, std::size_t row) const
    {
        const std::size_t column = column_of(condition.property);
        const Value value = cell(row, column);
        const bool denies = condition.comparison == Comparison::NotEqual;
        if (condition.literal.is_null() && (denies || condition.comparison == Comparison::Equal))
            return value.is_null() != denies ? 1 : -1;
        if (condition.literal.is_null() || value.is_null())
            return 0;
        const auto [less, more] = order(value, condition.literal, schema.properties[column].type);
        const std::array held{!less && !more, less || more, less, !more, more, !less};
        return held[static_cast<std::size_t>(condition.comparison)] ? 1 : -1;
    }

    /// The rows that the query takes; nothing for a query that is to be refused.
    std::optional<Rows> taken() const
    {
        Rows rows;
        try {
            for (const std::string& name : query.properties)
                column_of(name);
            for (std::size_t row = 0; row < row_count; ++row) {
                if (!query.condition || truth(*query.condition, row) == 1)
                    rows.push_back(row);
            }
        } catch (const Failure&) {
            return std::nullopt;
        }
        return rows;
    }
};

std::optional<ResultSet> answer(const NaiveQuery& naive)
{
    try {
        return run_query(naive.query, naive.schema, [&](const ObjectVisitor& visit) {
            for (std::size_t row = 0; row < row_count; ++row)
                visit([&](std::size_t column) { return naive.cell(row, column); });
        });
    } catch (const Failure&) {
        return std::nullopt;
    }
}

} // namespace

/// Any bytes as a query: it is refused, or its answer is that of a naive evaluation over the same
/// rows.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const WqlQuery query = parse_wql({reinterpret_cast<const char*>(data), size});
        const NaiveQuery naive{query, schema_of(query.class_name)};
        const auto rows = naive.taken();
        const auto result = answer(naive);
        require(result.has_value() == rows.has_value());
        require(!result || result->size() == rows->size());
        for (std::size_t i = 0; result && i < rows->size(); ++i) {
            for (const auto& [name, value] : (*result)[i].properties())
                require(value == naive.cell((*rows)[i], naive.column_of(name)));
            for (const std::string& name : query.properties)
                require((*result)[i][name] == naive.cell((*rows)[i], naive.column_of(name)));
        }
    } catch (const Failure&) {
        return 0;
    }
    return 0;
}
