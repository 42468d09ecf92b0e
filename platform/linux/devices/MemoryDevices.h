#pragma once

#include "platform/linux/files/Sysroot.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/formats/UdevRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// A memory module in its slot. What is not known is nothing.
struct MemoryDevice {
    /// Bytes.
    std::optional<std::uint64_t> capacity;
    /// CIM_PhysicalMemory.MemoryType.
    std::optional<int> type;
    /// CIM_Chip.FormFactor.
    std::optional<int> form_factor;
    /// Bits, check bits included.
    std::optional<int> total_width;
    std::optional<std::string> locator;
    bool operator==(const MemoryDevice&) const = default;
};

/// The CIM code of a memory type or form factor as systemd's helper writes it (its texts are those
/// of SMBIOS type 17); nothing for other text.
std::optional<int> memory_type_of_text(std::string_view text);
std::optional<int> form_factor_of_text(std::string_view text);

/// The fitted slots that udev published for the firmware's table. Slots are distinguished by
/// their number: labels repeat.
std::vector<MemoryDevice> published_memory(const UdevRecord& firmware);

/// The fitted slots of the firmware's table itself (SMBIOS type 17).
std::vector<MemoryDevice> memory_of_table(ByteView table);

/// The modules that the memory controller's driver knows, on machines with error correction.
std::vector<MemoryDevice> memory_of_controllers(const Sysroot& root);

/// All memory as one object, of which no more is known than its size and that it stands in no slot
/// of its own (an empty locator): for machines whose firmware describes no modules, such as virtual
/// ones and boards. Nothing if the kernel does not tell the size either.
std::optional<MemoryDevice> memory_of_kernel(const Sysroot& root);

} // namespace ostrelum::linux_platform
