#pragma once

#include "platform/linux/recording/Recording.h"
#include "platform/masking/KnownIdentities.h"

#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// The recording without what identifies anybody or anything: pseudonyms for names of accounts,
/// machines, networks, folders and volumes and for serial numbers, in what the files hold and in
/// their own names. Files in a form that is not known are left out, and so are the records of
/// logins. `accounts` are those that are shown, the user's own first.
Recording masked_recording(const Recording& recording, const std::vector<std::string>& accounts);

/// What is hidden in that recording.
KnownIdentities identities_in(const Recording& recording, const std::vector<std::string>& accounts);

} // namespace ostrelum::linux_platform
