#include "platform/linux/Smbios.h"

#include <cstdlib>

/// Any bytes as a firmware table: every field of every structure can be asked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (const ostrelum::SmbiosStructure& structure : ostrelum::smbios_structures({data, size})) {
        for (std::size_t offset = 0; offset <= 256; ++offset) {
            structure.word(offset);
            structure.dword(offset);
            if (const auto text = structure.string(offset); text && text->size() > size)
                std::abort();
        }
    }
    return 0;
}
