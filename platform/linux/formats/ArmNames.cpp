#include "platform/linux/formats/CpuInfo.h"

#include <algorithm>
#include <array>

namespace ostrelum::linux_platform {
namespace {

struct Maker {
    std::uint64_t implementer;
    const char* name;
};

struct Part {
    std::uint64_t implementer;
    std::uint64_t part;
    const char* name;
};

constexpr std::array<Maker, 13> makers{{
    {0x41, "ARM"},
    {0x42, "Broadcom"},
    {0x43, "Cavium"},
    {0x46, "Fujitsu"},
    {0x48, "HiSilicon"},
    {0x4e, "NVIDIA"},
    {0x50, "APM"},
    {0x51, "Qualcomm"},
    {0x53, "Samsung"},
    {0x56, "Marvell"},
    {0x61, "Apple"},
    {0x70, "Phytium"},
    {0xc0, "Ampere"},
}};

constexpr std::array<Part, 63> parts{{
    {0x41, 0xb76, "ARM1176"},      {0x41, 0xc05, "Cortex-A5"},    {0x41, 0xc07, "Cortex-A7"},
    {0x41, 0xc08, "Cortex-A8"},    {0x41, 0xc09, "Cortex-A9"},    {0x41, 0xc0d, "Cortex-A17"},
    {0x41, 0xc0e, "Cortex-A17"},   {0x41, 0xc0f, "Cortex-A15"},   {0x41, 0xd01, "Cortex-A32"},
    {0x41, 0xd02, "Cortex-A34"},   {0x41, 0xd03, "Cortex-A53"},   {0x41, 0xd04, "Cortex-A35"},
    {0x41, 0xd05, "Cortex-A55"},   {0x41, 0xd06, "Cortex-A65"},   {0x41, 0xd07, "Cortex-A57"},
    {0x41, 0xd08, "Cortex-A72"},   {0x41, 0xd09, "Cortex-A73"},   {0x41, 0xd0a, "Cortex-A75"},
    {0x41, 0xd0b, "Cortex-A76"},   {0x41, 0xd0c, "Neoverse-N1"},  {0x41, 0xd0d, "Cortex-A77"},
    {0x41, 0xd0e, "Cortex-A76AE"}, {0x41, 0xd40, "Neoverse-V1"},  {0x41, 0xd41, "Cortex-A78"},
    {0x41, 0xd42, "Cortex-A78AE"}, {0x41, 0xd43, "Cortex-A65AE"}, {0x41, 0xd44, "Cortex-X1"},
    {0x41, 0xd46, "Cortex-A510"},  {0x41, 0xd47, "Cortex-A710"},  {0x41, 0xd48, "Cortex-X2"},
    {0x41, 0xd49, "Neoverse-N2"},  {0x41, 0xd4a, "Neoverse-E1"},  {0x41, 0xd4b, "Cortex-A78C"},
    {0x41, 0xd4c, "Cortex-X1C"},   {0x41, 0xd4d, "Cortex-A715"},  {0x41, 0xd4e, "Cortex-X3"},
    {0x41, 0xd4f, "Neoverse-V2"},  {0x41, 0xd80, "Cortex-A520"},  {0x41, 0xd81, "Cortex-A720"},
    {0x41, 0xd82, "Cortex-X4"},    {0x41, 0xd84, "Neoverse-V3"},  {0x41, 0xd85, "Cortex-X925"},
    {0x41, 0xd87, "Cortex-A725"},  {0x41, 0xd8e, "Neoverse-N3"},  {0x42, 0x516, "ThunderX2"},
    {0x43, 0x0a1, "ThunderX"},     {0x43, 0x0af, "ThunderX2"},    {0x46, 0x001, "A64FX"},
    {0x48, 0xd01, "TaiShan v110"}, {0x48, 0xd02, "TaiShan v120"}, {0x4e, 0x003, "Denver 2"},
    {0x4e, 0x004, "Carmel"},       {0x51, 0x001, "Oryon"},        {0x51, 0xc00, "Falkor"},
    {0x61, 0x022, "Icestorm M1"},  {0x61, 0x023, "Firestorm M1"}, {0x61, 0x032, "Blizzard M2"},
    {0x61, 0x033, "Avalanche M2"}, {0x70, 0x660, "FTC660"},       {0x70, 0x661, "FTC661"},
    {0x70, 0x662, "FTC662"},       {0x70, 0x663, "FTC663"},       {0xc0, 0xac3, "Ampere-1"},
}};
static_assert(std::ranges::is_sorted(makers, {}, &Maker::implementer));

} // namespace

std::optional<std::string> arm_maker(std::uint64_t implementer)
{
    const auto row = std::ranges::find(makers, implementer, &Maker::implementer);
    return row == makers.end() ? std::nullopt : std::optional<std::string>(row->name);
}

std::optional<std::string> arm_name(std::uint64_t implementer, std::uint64_t part)
{
    const auto row = std::ranges::find_if(parts, [&](const Part& each) {
        return each.implementer == implementer && each.part == part;
    });
    return row == parts.end() ? std::nullopt : std::optional<std::string>(row->name);
}

} // namespace ostrelum::linux_platform
