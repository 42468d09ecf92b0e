#pragma once

#include "sources/ManagementService.h"

#include <map>
#include <string>
#include <vector>

namespace ostrelum::memory_platform {

/// What a scripted management service answers, and what it was asked.
struct ServiceScript {
    /// The result of each query text that does not fail.
    std::map<std::string, ResultSet, std::less<>> results;
    /// Every query in its order, failed ones too.
    std::vector<std::string> asked;
};

/// A management service that answers from a script, which must outlive it. A query that the script
/// does not hold fails.
class ScriptedService : public ManagementService {
public:
    explicit ScriptedService(ServiceScript& script) : script_(script) {}

    ResultSet ExecQuery(std::string_view wql) override
    {
        script_.asked.emplace_back(wql);
        const auto result = script_.results.find(wql);
        if (result == script_.results.end())
            throw Failure("the script has no such query");
        return result->second;
    }

private:
    ServiceScript& script_;
};

} // namespace ostrelum::memory_platform
