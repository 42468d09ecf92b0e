#include "sources/MemoryCodes.h"

#include "sources/CodeTable.h"

namespace ostrelum::inline sources {
namespace {

using Row = CodeRow<std::string_view>;

/// DMTF CIM schema, CIM_PhysicalMemory.MemoryType. "Synchronous DRAM" (3) and "cache DRAM" (4) are
/// not told apart from memory of no known kind, and the kinds above 21 are younger than the page.
constexpr auto memory_types = std::to_array<Row>({
    {2, "DRAM"},
    {5, "EDO"},
    {6, "EDRAM"},
    {7, "VRAM"},
    {8, "SRAM"},
    {9, "RAM"},
    {10, "ROM"},
    {11, "Flash"},
    {12, "EEPROM"},
    {13, "FEPROM"},
    {14, "EPROM"},
    {15, "CDRAM"},
    {16, "3DRAM"},
    {17, "SDRAM"},
    {18, "SGRAM"},
    {19, "RDRAM"},
    {20, "DDR"},
    {21, "DDR2"},
});
static_assert(rising(memory_types));

/// DMTF CIM schema, CIM_Chip.FormFactor; 6 is "proprietary".
constexpr auto form_factors = std::to_array<Row>({
    {2, "SIP"},   {3, "DIP"},    {4, "ZIP"},   {5, "SOJ"},     {7, "SIMM"},   {8, "DIMM"},
    {9, "TSOP"},  {10, "PGA"},   {11, "RIMM"}, {12, "SODIMM"}, {13, "SRIMM"}, {14, "SMD"},
    {15, "SSMP"}, {16, "QFP"},   {17, "TQFP"}, {18, "SOIC"},   {19, "LCC"},   {20, "PLCC"},
    {21, "BGA"},  {22, "FPBGA"}, {23, "LGA"},
});
static_assert(rising(form_factors));

template <std::size_t Count>
std::string text_of(const std::array<Row, Count>& rows, std::string_view code)
{
    const Row* row = find_code(rows, code);
    return row ? std::string(row->text) : std::string();
}

} // namespace

std::string memory_type_text(std::string_view code)
{
    return text_of(memory_types, code);
}

std::string form_factor_text(std::string_view code)
{
    return text_of(form_factors, code);
}

} // namespace ostrelum::inline sources
