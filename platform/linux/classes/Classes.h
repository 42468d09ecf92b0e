#pragma once

#include "platform/linux/files/MachineView.h"
#include "platform/wql/ClassQuery.h"
#include "sources/Schema.h"
#include "sources/Value.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// How Linux fills the classes of the management service: one file for each class, named after it.
/// Such a file has a type for what one object is read from, a function for each property, a table
/// of both, and a function that lists the objects:
///
///     Value caption(const Drive& drive) { return value_of(drive.root.text(...)); }
///     constexpr PropertyRow<Drive> rows[] = {{"Caption", caption}, ...};
///     std::vector<Drive> drives(const MachineView& machine) { ... }
///     constinit const LinuxClass Win32_DiskDrive = linux_class<rows, drives>("Win32_DiskDrive");
///
/// and a line in Classes.cpp. A table that does not have the schema's properties in the schema's
/// order does not compile.
namespace ostrelum::linux_platform {

/// What is delivered for what is not known. One null may take a page to its short form, which
/// leaves out rows that are known. Where the page itself takes an empty text, or 0, for unknown, it
/// is given that.
enum class Unknown : std::uint8_t { Null, EmptyText, Zero };

/// A property and how it is read. Whole numbers are given as such whatever their width; what is not
/// known is null, whatever is delivered then. Such a function does not throw.
template <class Object>
struct PropertyRow {
    std::string_view name;
    Value (*value)(const Object& object);
    Unknown unknown = Unknown::Null;
};

/// The property's value as it is delivered.
template <class Object>
Value delivered(const PropertyRow<Object>& row, const Object& object)
{
    Value value = row.value(object);
    if (!value.is_null() || row.unknown == Unknown::Null)
        return value;
    return row.unknown == Unknown::Zero ? Value(0) : Value("");
}

/// A class as Linux fills it.
struct LinuxClass {
    const ClassSchema* schema;
    /// Visits the objects in the class's order, which does not change between queries. A property
    /// is read when the visitor asks for it.
    void (*each_object)(const MachineView& machine, const ObjectVisitor& visit);
};

/// Makes a class of its table and the function that lists its objects.
template <auto& rows, auto objects>
consteval LinuxClass linux_class(std::string_view name)
{
    const ClassSchema& schema = schema_of(name);
    const auto same_name = [](const PropertySchema& property, const auto& row) {
        return property.name == row.name;
    };
    if (!std::ranges::equal(schema.properties, rows, same_name))
        throw "the table must have the schema's properties in their order";
    return {&schema, [](const MachineView& machine, const ObjectVisitor& visit) {
                for (const auto& object : objects(machine))
                    visit([&](std::size_t index) { return delivered(rows[index], object); });
            }};
}

/// Null for what is not known.
template <class Known>
Value value_of(const std::optional<Known>& known)
{
    return known ? Value(*known) : Value();
}

extern const LinuxClass Win32_BaseBoard;
extern const LinuxClass Win32_Battery;
extern const LinuxClass Win32_BIOS;
extern const LinuxClass Win32_CDROMDrive;
extern const LinuxClass Win32_ComputerSystem;
extern const LinuxClass Win32_DesktopMonitor;
extern const LinuxClass Win32_DiskDrive;
extern const LinuxClass Win32_Keyboard;
extern const LinuxClass Win32_LogicalDisk;
extern const LinuxClass Win32_NetworkLoginProfile;
extern const LinuxClass Win32_OperatingSystem;
extern const LinuxClass Win32_PhysicalMemory;
extern const LinuxClass Win32_PointingDevice;
extern const LinuxClass Win32_Processor;
extern const LinuxClass Win32_SoundDevice;
extern const LinuxClass Win32_UserAccount;
extern const LinuxClass Win32_VideoController;

/// The class of that name in any case of its letters; nullptr if Linux does not fill it.
const LinuxClass* find_linux_class(std::string_view name);

} // namespace ostrelum::linux_platform
