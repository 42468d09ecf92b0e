#pragma once

#include "platform/windows/services/Com.h"
#include "sources/ManagementService.h"

#include <string>

#include <wbemidl.h>

namespace ostrelum::windows_platform {

/// The service of a namespace such as "\\.\root\cimv2", with the rights of the process's user.
/// Throws Failure if there is none.
ComPtr<IWbemServices> connect_to_namespace(const std::string& name);

/// Asks the service and walks the answer once, forward. Refusals of the text come from the question
/// itself or with the first object, by the service's version. Throws Failure for both; what fails
/// behind the first object ends the walk there, and a property that cannot be had is missing from
/// its object.
ResultSet run_wmi_query(IWbemServices& service, const std::string& wql);

/// A failure because of which the service has to be connected anew: it has ended, or started again.
class ServiceGone : public Failure {
public:
    using Failure::Failure;
};

} // namespace ostrelum::windows_platform
