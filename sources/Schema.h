#pragma once

#include "platform/system/Failure.h"
#include "sources/Ascii.h"
#include "sources/SchemaTables.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace ostrelum::inline sources {

/// What a class has, whatever the provider.
struct ClassSchema {
    std::string_view name;
    std::span<const PropertySchema> properties;
};

inline constexpr ClassSchema class_table[] = {
    {"Win32_BaseBoard", Win32_BaseBoard_properties},
    {"Win32_Battery", Win32_Battery_properties},
    {"Win32_BIOS", Win32_BIOS_properties},
    {"Win32_CDROMDrive", Win32_CDROMDrive_properties},
    {"Win32_ComputerSystem", Win32_ComputerSystem_properties},
    {"Win32_DesktopMonitor", Win32_DesktopMonitor_properties},
    {"Win32_DiskDrive", Win32_DiskDrive_properties},
    {"Win32_Keyboard", Win32_Keyboard_properties},
    {"Win32_LogicalDisk", Win32_LogicalDisk_properties},
    {"Win32_NetworkLoginProfile", Win32_NetworkLoginProfile_properties},
    {"Win32_OperatingSystem", Win32_OperatingSystem_properties},
    {"Win32_PhysicalMemory", Win32_PhysicalMemory_properties},
    {"Win32_PointingDevice", Win32_PointingDevice_properties},
    {"Win32_Processor", Win32_Processor_properties},
    {"Win32_SoundDevice", Win32_SoundDevice_properties},
    {"Win32_UserAccount", Win32_UserAccount_properties},
    {"Win32_VideoController", Win32_VideoController_properties},
};

/// Every class of the namespace root\cimv2 that is known, sorted by name.
constexpr std::span<const ClassSchema> class_schemas()
{
    return class_table;
}

/// The row of that name in any case of its letters; nullptr for none.
template <class Row>
constexpr const Row* find_named(std::span<const Row> rows, std::string_view name)
{
    const auto row = std::ranges::find_if(
        rows, [&](const Row& each) { return same_ascii_letters(each.name, name); });
    return row == rows.end() ? nullptr : &*row;
}

/// The class of that name. Throws Failure if there is none; in a constant that does not compile.
constexpr const ClassSchema& schema_of(std::string_view name)
{
    for (const ClassSchema& each : class_table) {
        if (same_ascii_letters(each.name, name))
            return each;
    }
    throw Failure("no such class: " + std::string(name));
}

/// The type as the schema's own language writes it, such as "uint32".
std::string_view type_name(CimType type);

template <class Row>
constexpr bool sorted_by_name(std::span<const Row> rows)
{
    const auto not_before = [](const Row& a, const Row& b) {
        return !std::ranges::lexicographical_compare(a.name, b.name, {}, lower_ascii, lower_ascii);
    };
    return std::ranges::adjacent_find(rows, not_before) == rows.end();
}
static_assert(sorted_by_name(class_schemas()));
static_assert(std::ranges::all_of(class_table, [](const ClassSchema& each) {
    return sorted_by_name(each.properties);
}));

} // namespace ostrelum::inline sources
