#include "platform/linux/formats/Smbios.h"
#include "platform/linux/recording/MaskedBytes.h"

#include <cstdlib>

/// Any bytes as a firmware table: every field of every structure can be asked for, and masking
/// keeps the structures.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    using namespace ostrelum::linux_platform;
    const auto structures = smbios_structures({data, size});
    const std::string masked = masked_firmware_table(std::string(data, data + size));
    if (smbios_structures(bytes_of(masked)).size() != structures.size())
        std::abort();
    for (const SmbiosStructure& structure : structures) {
        for (std::size_t offset = 0; offset <= 256; ++offset) {
            structure.word(offset);
            structure.dword(offset);
            if (const auto text = structure.string(offset); text && text->size() > size)
                std::abort();
        }
    }
    return 0;
}
