#include "platform/linux/LinuxManagementService.h"

#include "platform/linux/LiveSystemCalls.h"
#include "platform/linux/classes/Classes.h"
#include "platform/linux/formats/InstallationId.h"
#include "platform/linux/formats/VolumeSerial.h"
#include "platform/linux/recording/ObservedSystemCalls.h"
#include "platform/linux/recording/RecordedIdentities.h"
#include "platform/linux/recording/RecordedSystemCalls.h"
#include "platform/system/Failure.h"
#include "platform/wql/ClassQuery.h"
#include "platform/wql/Wql.h"

#include <utility>

namespace ostrelum::linux_platform {
namespace {

constexpr IdentityRules live_identities{installation_id, serial_of_identity};

class LinuxManagementService : public ManagementService {
public:
    explicit LinuxManagementService(MachineView machine) : machine_(std::move(machine)) {}

    ResultSet ExecQuery(std::string_view wql) override
    {
        const WqlQuery query = parse_wql(wql);
        const LinuxClass* asked = find_linux_class(query.class_name);
        if (!asked)
            throw Failure("no such class: " + query.class_name);
        return run_query(query, *asked->schema,
                         [&](const ObjectVisitor& visit) { asked->each_object(machine_, visit); });
    }

private:
    MachineView machine_;
};

} // namespace

std::unique_ptr<ManagementService> make_linux_management_service(const std::string& root,
                                                                 SessionFactsSource session)
{
    return make_linux_management_service(Sysroot(root), std::move(session));
}

std::unique_ptr<ManagementService> make_linux_management_service(Sysroot root,
                                                                 SessionFactsSource session)
{
    const bool live = root.is_live();
    auto calls = live ? live_system_calls() : recorded_system_calls(Sysroot(root, nullptr));
    if (root.observer())
        calls = observed_system_calls(std::move(calls), root.observer());
    return std::make_unique<LinuxManagementService>(
        MachineView{std::move(root), std::move(calls), std::move(session),
                    live ? live_identities : recorded_identities()});
}

} // namespace ostrelum::linux_platform
