#pragma once

#include "platform/masking/Pseudonyms.h"
#include "sources/ManagementService.h"
#include "sources/Schema.h"

#include <memory>
#include <string>

namespace ostrelum::inline masking {

/// Passes queries on to another management service, and puts pseudonyms in place of what the schema
/// marks as identifying somebody. Conditions are tested on the true values. Null and empty text
/// stay so.
class MaskedService : public ManagementService {
public:
    /// `own_account` gets the first pseudonym of all accounts.
    MaskedService(std::unique_ptr<ManagementService> service, const std::string& own_account);

    ResultSet ExecQuery(std::string_view wql) override;

private:
    Value masked(const Value& value, Identity identity);

    std::unique_ptr<ManagementService> service_;
    Pseudonyms accounts_;
    Pseudonyms folders_;
};

} // namespace ostrelum::inline masking
