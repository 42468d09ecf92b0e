#include "platform/wql/WqlCondition.h"

#include <cstdint>

/// Any bytes as a query: it is read and its condition decided, or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    try {
        const WqlQuery query = parse_wql({reinterpret_cast<const char*>(data), size});
        if (query.condition) {
            const auto condition =
                typed_condition(*query.condition, schema_of("Win32_LogicalDisk"));
            truth_of(condition, [](std::string_view) { return Value("12"); });
        }
    } catch (const Failure&) {
        return 0;
    }
    return 0;
}
