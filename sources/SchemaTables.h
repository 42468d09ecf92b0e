#pragma once

#include <string_view>

/// The properties of each class (DMTF CIM schema and its Win32 extension), as many as are used,
/// sorted by name.
namespace ostrelum::inline sources {

enum class CimType { Boolean, UInt16, UInt32, UInt64, String, DateTime };

/// Whether a property comes with every object, selected or not. A class's key does so where that is
/// relied on; a battery's takes reading that a figure of each second has no use for.
enum class Key : bool { No, Yes };

/// How a property tells whose machine it is: what has to be hidden before others may read it.
enum class Identity {
    /// It does not.
    None,
    /// It identifies a person, a machine, a network, a part or a volume.
    Value,
    /// It is a person's name.
    Person,
    /// It names an account; one must still be told from another.
    Account,
    /// A place, in which folders may be named after any of these.
    Path,
    /// A text in which a person may have put any of these.
    Wording,
};

struct PropertySchema {
    std::string_view name;
    CimType type;
    /// Empty for what has none.
    std::string_view unit;
    std::string_view meaning;
    Key key = Key::No;
    Identity identity = Identity::None;
};

inline constexpr PropertySchema Win32_BaseBoard_properties[] = {
    {"Manufacturer", CimType::String, "", "Maker of the main board"},
    {"Product", CimType::String, "", "The maker's name for the board"},
};

inline constexpr PropertySchema Win32_Battery_properties[] = {
    {"DesignVoltage", CimType::UInt64, "mV", "Voltage"},
    {"DeviceID", CimType::String, "", "Serial number, maker and name run together", Key::No,
     Identity::Value},
    {"EstimatedChargeRemaining", CimType::UInt16, "%", "Charge left"},
    {"EstimatedRunTime", CimType::UInt32, "min", "Time until empty"},
    {"Name", CimType::String, "", "The maker's name for the battery", Key::No, Identity::Wording},
};

inline constexpr PropertySchema Win32_BIOS_properties[] = {
    {"Manufacturer", CimType::String, "", "Maker of the firmware"},
    {"Name", CimType::String, "", "Version text of the firmware", Key::Yes},
    {"ReleaseDate", CimType::DateTime, "", "Day of the firmware's release"},
    {"SerialNumber", CimType::String, "", "Serial number of the machine", Key::No, Identity::Value},
    {"SMBIOSBIOSVersion", CimType::String, "", "Version text of the firmware"},
};

inline constexpr PropertySchema Win32_CDROMDrive_properties[] = {
    {"MediaType", CimType::String, "", "What the drive reads and writes"},
    {"Name", CimType::String, "", "The maker's name for the drive"},
    {"Size", CimType::UInt64, "byte", "Size of the loaded disc"},
};

inline constexpr PropertySchema Win32_ComputerSystem_properties[] = {
    {"AutomaticResetBootOption", CimType::Boolean, "", "The system starts again after a crash"},
    {"Domain", CimType::String, "", "Domain, else workgroup", Key::No, Identity::Value},
    {"Manufacturer", CimType::String, "", "Maker of the machine"},
    {"Model", CimType::String, "", "The maker's name for the machine"},
    {"SystemStartupDelay", CimType::UInt16, "s", "Wait of the start menu"},
    {"SystemType", CimType::String, "", "Kind of machine, by its processor"},
};

inline constexpr PropertySchema Win32_DesktopMonitor_properties[] = {
    {"MonitorManufacturer", CimType::String, "", "Maker of the monitor"},
    {"Name", CimType::String, "", "The maker's name for the monitor"},
};

inline constexpr PropertySchema Win32_DiskDrive_properties[] = {
    {"Caption", CimType::String, "", "The maker's name for the drive"},
    {"InterfaceType", CimType::String, "", "IDE, SCSI, USB or 1394"},
    {"Partitions", CimType::UInt32, "", "Number of partitions"},
};

inline constexpr PropertySchema Win32_Keyboard_properties[] = {
    {"Description", CimType::String, "", "Kind of keyboard, by its connection"},
    {"Name", CimType::String, "", "Name of the device", Key::No, Identity::Wording},
};

inline constexpr PropertySchema Win32_LogicalDisk_properties[] = {
    {"Caption", CimType::String, "", "Where the volume is found", Key::No, Identity::Path},
    {"DriveType", CimType::UInt32, "", "2 removable, 3 fixed, 4 network, 5 optical, 6 memory"},
    {"FileSystem", CimType::String, "", "Name of the file system"},
    {"FreeSpace", CimType::UInt64, "byte", "Space that the user may still fill"},
    {"Name", CimType::String, "", "Where the volume is found", Key::No, Identity::Path},
    {"Size", CimType::UInt64, "byte", "Size of the volume"},
    {"VolumeName", CimType::String, "", "The user's name for the volume", Key::No, Identity::Value},
    {"VolumeSerialNumber", CimType::String, "", "Eight hexadecimal digits", Key::No,
     Identity::Value},
};

inline constexpr PropertySchema Win32_NetworkLoginProfile_properties[] = {
    {"BadPasswordCount", CimType::UInt32, "", "Failed logons"},
    {"Caption", CimType::String, "", "Name of the account", Key::No, Identity::Account},
    {"LastLogon", CimType::DateTime, "", "Last logon"},
    {"Name", CimType::String, "", "Name of the account", Key::Yes, Identity::Account},
    {"NumberOfLogons", CimType::UInt32, "", "Logons; 4294967295 not known"},
    {"Privileges", CimType::UInt32, "", "0 guest, 1 user, 2 administrator"},
};

inline constexpr PropertySchema Win32_OperatingSystem_properties[] = {
    {"Caption", CimType::String, "", "Name of the system"},
    {"FreePhysicalMemory", CimType::UInt64, "KB", "Memory that programs can still have"},
    {"FreeVirtualMemory", CimType::UInt64, "KB", "The same with swap space"},
    {"InstallDate", CimType::DateTime, "", "Day of the installation"},
    {"LargeSystemCache", CimType::UInt32, "", "0 for programs, 1 for the system"},
    {"NumberOfProcesses", CimType::UInt32, "", "Running processes"},
    {"OSArchitecture", CimType::String, "", "Width of the system's words"},
    {"OSLanguage", CimType::UInt32, "", "LCID of the system's language"},
    {"RegisteredUser", CimType::String, "", "Owner of the system", Key::No, Identity::Person},
    {"SerialNumber", CimType::String, "", "Identity of the installation", Key::No, Identity::Value},
    {"ServicePackMajorVersion", CimType::UInt16, "", "Service pack, 0 for none"},
    {"TotalVirtualMemorySize", CimType::UInt64, "KB", "Memory with swap space"},
    {"Version", CimType::String, "", "Version of the kernel"},
};

inline constexpr PropertySchema Win32_PhysicalMemory_properties[] = {
    {"Capacity", CimType::UInt64, "byte", "Size of the module"},
    {"DeviceLocator", CimType::String, "", "Label of the socket"},
    {"FormFactor", CimType::UInt16, "", "Shape, CIM_Chip.FormFactor"},
    {"MemoryType", CimType::UInt16, "", "Kind, CIM_PhysicalMemory.MemoryType"},
    {"TotalWidth", CimType::UInt16, "bit", "Width with check bits"},
};

inline constexpr PropertySchema Win32_PointingDevice_properties[] = {
    {"DeviceInterface", CimType::UInt16, "", "Kind of connection"},
    {"Handedness", CimType::UInt16, "", "2 right, 3 left"},
    {"Manufacturer", CimType::String, "", "Maker of the device", Key::No, Identity::Wording},
    {"Name", CimType::String, "", "Name of the device", Key::No, Identity::Wording},
};

inline constexpr PropertySchema Win32_Processor_properties[] = {
    {"Architecture", CimType::UInt16, "", "Kind of instructions"},
    {"Caption", CimType::String, "", "Family, model and stepping"},
    {"CurrentClockSpeed", CimType::UInt32, "MHz", "Clock now"},
    {"L2CacheSize", CimType::UInt32, "KB", "Second-level cache of the package"},
    {"L3CacheSize", CimType::UInt32, "KB", "Third-level cache of the package"},
    {"Manufacturer", CimType::String, "", "Maker, in the processor's own spelling"},
    {"MaxClockSpeed", CimType::UInt32, "MHz", "Rated clock"},
    {"Name", CimType::String, "", "The maker's name for the processor"},
    {"SocketDesignation", CimType::String, "", "Label of the socket"},
};

inline constexpr PropertySchema Win32_SoundDevice_properties[] = {
    {"Manufacturer", CimType::String, "", "Maker of the device", Key::No, Identity::Wording},
    {"Name", CimType::String, "", "The maker's name for the device", Key::No, Identity::Wording},
};

inline constexpr PropertySchema Win32_UserAccount_properties[] = {
    {"AccountType", CimType::UInt32, "", "512 an ordinary account"},
    {"Caption", CimType::String, "", "Name of the account", Key::No, Identity::Account},
    {"Domain", CimType::String, "", "Domain, or the machine's name", Key::Yes, Identity::Value},
    {"Name", CimType::String, "", "Name of the account", Key::Yes, Identity::Account},
    {"PasswordChangeable", CimType::Boolean, "", "The user may change the password"},
    {"PasswordExpires", CimType::Boolean, "", "The password has an end"},
};

inline constexpr PropertySchema Win32_VideoController_properties[] = {
    {"AdapterDACType", CimType::String, "", "Analog converter"},
    {"AdapterRAM", CimType::UInt32, "byte", "Memory of the adapter; text above 32 bits"},
    {"CurrentBitsPerPixel", CimType::UInt32, "bit", "Depth of the current mode"},
    {"CurrentHorizontalResolution", CimType::UInt32, "pixel", "Width of the current mode"},
    {"CurrentRefreshRate", CimType::UInt32, "Hz", "Refresh rate of the current mode"},
    {"CurrentVerticalResolution", CimType::UInt32, "pixel", "Height of the current mode"},
    {"DriverDate", CimType::DateTime, "", "Day of the driver's release"},
    {"DriverVersion", CimType::String, "", "Version of the driver", Key::No, Identity::Wording},
    {"InstalledDisplayDrivers", CimType::String, "", "Drivers, with commas between them"},
    {"MaxRefreshRate", CimType::UInt32, "Hz", "Highest refresh rate"},
    {"MinRefreshRate", CimType::UInt32, "Hz", "Lowest refresh rate"},
    {"Name", CimType::String, "", "The maker's name for the adapter"},
};

} // namespace ostrelum::inline sources
