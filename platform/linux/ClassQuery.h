#pragma once

#include "platform/linux/Classes.h"
#include "platform/linux/Wql.h"
#include "sources/ManagementService.h"

namespace ostrelum {

/// The objects of a class that a query takes, with the selected properties and the keys, in the
/// schema's order and spelling. Of each object only those and what the condition tests are read,
/// each at most once. Throws Failure for a property that the class does not have, whether there are
/// objects or not.
ResultSet run_query(const WqlQuery& query, const LinuxClass& linux_class,
                    const MachineView& machine);

} // namespace ostrelum
