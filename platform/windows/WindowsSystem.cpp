#include "platform/windows/WindowsSystem.h"

namespace ostrelum::windows_platform {

ComProcess::ComProcess() : apartment_(COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)
{
    // The management service acts for the user who asks. Where somebody else has set the process's
    // security first, his choice stands.
    CoInitializeSecurity(nullptr, -1, nullptr, nullptr, RPC_C_AUTHN_LEVEL_DEFAULT,
                         RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE, nullptr);
}

} // namespace ostrelum::windows_platform
