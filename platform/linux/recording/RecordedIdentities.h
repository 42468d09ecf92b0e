#pragma once

#include "platform/linux/files/MachineView.h"

namespace ostrelum::linux_platform {

/// The rules for a recorded machine: the pseudonyms that a masked one has in place of identities
/// are shown as they are.
IdentityRules recorded_identities();

} // namespace ostrelum::linux_platform
