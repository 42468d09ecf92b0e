#include "sources/Schema.h"

namespace ostrelum::inline sources {

std::string_view type_name(CimType type)
{
    switch (type) {
    case CimType::Boolean: return "boolean";
    case CimType::UInt16: return "uint16";
    case CimType::UInt32: return "uint32";
    case CimType::UInt64: return "uint64";
    case CimType::String: return "string";
    case CimType::DateTime: return "datetime";
    }
    return "";
}

} // namespace ostrelum::inline sources
