#include "fuzz/Target.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/recording/MaskedBytes.h"

#include <cstring>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

/// The number there as this processor, whose lowest byte comes first too, has it in memory.
template <class Number>
std::optional<Number> there(ByteView bytes, std::size_t offset)
{
    Number number = 0;
    if (offset + sizeof number > bytes.size())
        return std::nullopt;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

/// Serial numbers, tags, and the machine's UUID; whether the text at a place is one of them.
void check_hidden(const SmbiosStructure& structure)
{
    for (const auto& [type, offset] : {std::pair{1, 7}, {2, 7}, {3, 7}, {4, 0x20}, {17, 0x18}}) {
        const auto text = structure.string(static_cast<std::size_t>(offset));
        bool named = false;
        for (const std::size_t kept : {0x04U, 0x05U, 0x07U, 0x10U, 0x17U, 0x1AU})
            named |= structure.byte(kept) == structure.byte(static_cast<std::size_t>(offset)) &&
                     kept != static_cast<std::size_t>(offset);
        require(structure.type() != type || !text || named ||
                text->find_first_not_of('*') == text->npos);
    }
    for (std::size_t at = 0x08; structure.type() == 1 && at < 0x18; ++at)
        require(structure.byte(at).value_or(0) == 0);
}

} // namespace

/// Any bytes as a firmware table: every field of every structure can be asked for, and masking
/// keeps the structures without their serial numbers.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto structures = smbios_structures({data, size});
    const std::string masked = masked_firmware_table(std::string(data, data + size));
    const auto hidden = smbios_structures(bytes_of(masked));
    require(hidden.size() == structures.size());
    for (const SmbiosStructure& structure : hidden)
        check_hidden(structure);
    for (const SmbiosStructure& structure : structures) {
        for (std::size_t offset = 0; offset <= 256; ++offset) {
            require(structure.word(offset) == there<std::uint16_t>(structure.formatted(), offset));
            require(structure.dword(offset) == there<std::uint32_t>(structure.formatted(), offset));
            const auto text = structure.string(offset);
            require(!text || text->size() <= size);
        }
    }
    return 0;
}
