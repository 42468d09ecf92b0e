#include "platform/linux/recording/RecordedIdentities.h"

#include "platform/linux/formats/InstallationId.h"
#include "platform/linux/formats/VolumeSerial.h"
#include "platform/masking/Pseudonyms.h"

namespace ostrelum::linux_platform {
namespace {

std::optional<std::string> installation(std::string_view machine_id)
{
    return is_pseudonym(machine_id) ? std::string(machine_id) : installation_id(machine_id);
}

std::optional<std::string> volume(std::string_view identity, std::string_view type)
{
    return is_pseudonym(identity) ? std::string(identity) : serial_of_identity(identity, type);
}

} // namespace

IdentityRules recorded_identities()
{
    return {installation, volume};
}

} // namespace ostrelum::linux_platform
