#include "platform/linux/devices/MemoryDevices.h"

#include "platform/linux/formats/MemoryInfo.h"
#include "platform/linux/formats/Placeholder.h"
#include "platform/linux/text/Text.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

/// A code of SMBIOS type 17, its text, and the code of the CIM schema.
struct CodeText {
    int smbios;
    std::string_view text;
    int cim;
};

/// DMTF DSP0134, 7.18.2 (offset 12h); CIM_PhysicalMemory.MemoryType. From 18h on the codes are the
/// same.
constexpr std::array<CodeText, 33> types{{
    {0x01, "Other", 1},   {0x02, "Unknown", 0},
    {0x03, "DRAM", 2},    {0x04, "EDRAM", 6},
    {0x05, "VRAM", 7},    {0x06, "SRAM", 8},
    {0x07, "RAM", 9},     {0x08, "ROM", 10},
    {0x09, "Flash", 11},  {0x0A, "EEPROM", 12},
    {0x0B, "FEPROM", 13}, {0x0C, "EPROM", 14},
    {0x0D, "CDRAM", 15},  {0x0E, "3DRAM", 16},
    {0x0F, "SDRAM", 17},  {0x10, "SGRAM", 18},
    {0x11, "RDRAM", 19},  {0x12, "DDR", 20},
    {0x13, "DDR2", 21},   {0x14, "DDR2 FB-DIMM", 22},
    {0x18, "DDR3", 24},   {0x19, "FBD2", 25},
    {0x1A, "DDR4", 26},   {0x1B, "LPDDR", 27},
    {0x1C, "LPDDR2", 28}, {0x1D, "LPDDR3", 29},
    {0x1E, "LPDDR4", 30}, {0x1F, "Logical non-volatile device", 31},
    {0x20, "HBM", 32},    {0x21, "HBM2", 33},
    {0x22, "DDR5", 34},   {0x23, "LPDDR5", 35},
    {0x24, "HBM3", 36},
}};

/// DMTF DSP0134, 7.18.1 (offset 0Eh); CIM_Chip.FormFactor. What that schema has no code for is 1,
/// "other"; a row of chips is soldered to the surface of the board, for which it has 14, "SMD".
constexpr std::array<CodeText, 17> form_factors{{
    {0x01, "Other", 1},
    {0x02, "Unknown", 0},
    {0x03, "SIMM", 7},
    {0x04, "SIP", 2},
    {0x05, "Chip", 1},
    {0x06, "DIP", 3},
    {0x07, "ZIP", 4},
    {0x08, "Proprietary Card", 6},
    {0x09, "DIMM", 8},
    {0x0A, "TSOP", 9},
    {0x0B, "Row Of Chips", 14},
    {0x0C, "RIMM", 11},
    {0x0D, "SODIMM", 12},
    {0x0E, "SRIMM", 13},
    {0x0F, "FB-DIMM", 24},
    {0x10, "Die", 1},
    {0x11, "CAMM", 1},
}};
static_assert(std::ranges::is_sorted(types, {}, &CodeText::smbios));
static_assert(std::ranges::is_sorted(form_factors, {}, &CodeText::smbios));

template <std::size_t Count>
std::optional<int> by_text(const std::array<CodeText, Count>& rows, std::string_view text)
{
    const auto row = std::ranges::find(rows, text, &CodeText::text);
    return row == rows.end() ? std::nullopt : std::optional(row->cim);
}

template <std::size_t Count>
std::optional<int> by_code(const std::array<CodeText, Count>& rows,
                           std::optional<std::uint8_t> code)
{
    const auto row = std::ranges::find(rows, code ? int{*code} : -1, &CodeText::smbios);
    return row == rows.end() ? std::nullopt : std::optional(row->cim);
}

/// Firmware that is newer than this program has codes behind the table's last one; they are the
/// same in both schemas.
std::optional<int> type_of_code(std::optional<std::uint8_t> code)
{
    if (code && *code > types.back().smbios)
        return int{*code};
    return by_code(types, code);
}

/// Chips that hold the firmware are no memory modules.
bool holds_firmware(const MemoryDevice& device)
{
    constexpr int rom = 10;
    constexpr int flash = 11;
    return device.type == rom || device.type == flash;
}

/// Values with a meaning of their own in the sizes and widths of a slot (DSP0134, 7.18).
constexpr unsigned unknown_size = 0xFFFF;
constexpr unsigned size_in_extended_field = 0x7FFF;
constexpr unsigned unknown_width = 0xFFFF;
/// Set in a size that counts kibibytes, not mebibytes.
constexpr unsigned in_kibibytes = 0x8000;
/// The highest bit of the extended size is reserved.
constexpr std::uint64_t extended_size_bits = 0x7FFFFFFF;

/// What offsets 0Ch and 1Ch say; nothing inside for a size that is not known, nothing at all for an
/// empty slot.
std::optional<std::optional<std::uint64_t>> size_of(const SmbiosStructure& slot)
{
    constexpr std::uint64_t kibibyte = 1024;
    constexpr std::uint64_t mebibyte = 1024 * kibibyte;
    const auto size = slot.word(0x0C);
    if (!size || *size == 0)
        return std::nullopt;
    if (*size == unknown_size)
        return std::optional<std::uint64_t>();
    if (*size == size_in_extended_field) {
        const auto mebibytes = slot.dword(0x1C);
        return mebibytes ? std::optional((*mebibytes & extended_size_bits) * mebibyte)
                         : std::nullopt;
    }
    const std::uint64_t unit = (*size & in_kibibytes) != 0 ? kibibyte : mebibyte;
    return std::optional((*size & ~in_kibibytes) * unit);
}

std::optional<int> width_of(std::optional<std::uint64_t> bits)
{
    return bits && *bits != 0 && *bits < unknown_width ? std::optional(static_cast<int>(*bits))
                                                       : std::nullopt;
}

std::optional<std::uint64_t> number_of(const std::optional<std::string>& text)
{
    return text ? whole_number(*text) : std::nullopt;
}

/// The slot of that number, if it is fitted.
std::optional<MemoryDevice> published_slot(const UdevRecord& firmware, int number)
{
    const std::string slot = "MEMORY_DEVICE_" + std::to_string(number) + "_";
    const auto fact = [&](const char* name) { return firmware.text(slot + name); };
    const auto type = fact("TYPE");
    const auto form = fact("FORM_FACTOR");
    if ((!type && !form) || fact("PRESENT") == "0")
        return std::nullopt;
    const auto locator = fact("LOCATOR");
    return MemoryDevice{.capacity = number_of(fact("SIZE")),
                        .type = type ? memory_type_of_text(*type) : std::nullopt,
                        .form_factor = form ? form_factor_of_text(*form) : std::nullopt,
                        .total_width = width_of(number_of(fact("TOTAL_WIDTH"))),
                        .locator = locator ? meaningful_text(*locator) : std::nullopt};
}

/// The kind in a controller's own words, such as "Registered-DDR4".
std::optional<int> type_of_words(std::string_view words)
{
    return memory_type_of_text(words.substr(words.rfind('-') + 1));
}

/// Bytes of the blocks in which the kernel adds and removes memory. They cover all that is fitted,
/// also what the kernel itself lies in.
std::optional<std::uint64_t> online_blocks(const Sysroot& root)
{
    constexpr std::uint64_t largest = std::uint64_t{1} << 40;
    const std::string folder = "/sys/devices/system/memory/";
    const auto size = whole_number(root.text(folder + "block_size_bytes").value_or(""), 16);
    if (!size || *size > largest)
        return std::nullopt;
    const auto names = root.list(folder);
    const auto count = std::ranges::count_if(names, [&](const std::string& name) {
        return root.text(folder + name + "/state") == "online";
    });
    const std::uint64_t bytes = *size * static_cast<std::uint64_t>(count);
    return bytes > 0 ? std::optional(bytes) : std::nullopt;
}

/// Bytes that the kernel manages, which is a little less than all.
std::optional<std::uint64_t> told_total(const Sysroot& root)
{
    constexpr std::uint64_t kibibyte = 1024;
    constexpr std::uint64_t most = UINT64_MAX / kibibyte;
    const auto total = parse_meminfo(root.read("/proc/meminfo").value_or("")).total.value_or(0);
    return total > 0 && total <= most ? std::optional(total * kibibyte) : std::nullopt;
}

} // namespace

std::optional<int> memory_type_of_text(std::string_view text)
{
    return by_text(types, text);
}
std::optional<int> form_factor_of_text(std::string_view text)
{
    return by_text(form_factors, text);
}

std::vector<MemoryDevice> published_memory(const UdevRecord& firmware)
{
    /// Numbers may have gaps; a table has no more structures than this.
    constexpr int most = 256;
    std::vector<MemoryDevice> devices;
    for (int number = 0; number < most; ++number) {
        const auto device = published_slot(firmware, number);
        if (device && !holds_firmware(*device))
            devices.push_back(*device);
    }
    return devices;
}

std::vector<MemoryDevice> memory_of_table(ByteView table)
{
    constexpr std::uint8_t memory_device_type = 17;
    std::vector<MemoryDevice> devices;
    for (const SmbiosStructure& slot : smbios_structures(table)) {
        const auto size = slot.type() == memory_device_type ? size_of(slot) : std::nullopt;
        if (!size)
            continue;
        const auto locator = slot.string(0x10);
        MemoryDevice device{.capacity = *size,
                            .type = type_of_code(slot.byte(0x12)),
                            .form_factor = by_code(form_factors, slot.byte(0x0E)),
                            .total_width = width_of(slot.word(0x08)),
                            .locator = locator ? meaningful_text(*locator) : std::nullopt};
        if (!holds_firmware(device))
            devices.push_back(std::move(device));
    }
    return devices;
}

std::vector<MemoryDevice> memory_of_controllers(const Sysroot& root)
{
    constexpr std::uint64_t mebibyte = 1024ULL * 1024;
    const std::string controllers = "/sys/devices/system/edac/mc";
    std::vector<MemoryDevice> devices;
    for (const std::string& controller : root.list(controllers)) {
        for (const std::string& name : root.list(controllers + "/" + controller)) {
            const std::string folder = controllers + "/" + controller + "/" + name;
            const auto size =
                name.starts_with("dimm") ? root.number(folder + "/size") : std::nullopt;
            if (!size || *size == 0 || *size > UINT32_MAX)
                continue;
            const auto label = root.text(folder + "/dimm_label");
            devices.push_back(
                {.capacity = *size * mebibyte,
                 .type = type_of_words(root.text(folder + "/dimm_mem_type").value_or("")),
                 .locator = label ? meaningful_text(*label) : std::nullopt});
        }
    }
    return devices;
}

std::optional<MemoryDevice> memory_of_kernel(const Sysroot& root)
{
    const auto blocks = online_blocks(root);
    const auto bytes = blocks ? blocks : told_total(root);
    return bytes ? std::optional(MemoryDevice{.capacity = bytes, .locator = ""}) : std::nullopt;
}

} // namespace ostrelum::linux_platform
