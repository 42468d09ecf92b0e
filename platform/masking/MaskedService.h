#pragma once

#include "platform/masking/KnownIdentities.h"
#include "platform/masking/Pseudonyms.h"
#include "sources/ManagementService.h"
#include "sources/Schema.h"

#include <memory>
#include <string>

namespace ostrelum::inline masking {

/// Passes queries on to another management service, and puts pseudonyms in place of what the schema
/// marks as identifying somebody, also where other texts mention it, and in place of texts and
/// lists that the schema does not know. Conditions are tested on the true values. Null and empty
/// text stay so.
class MaskedService : public ManagementService {
public:
    /// `own_account` gets the first pseudonym of all accounts. `known` is what is known of the
    /// machine beyond what the service tells.
    MaskedService(std::unique_ptr<ManagementService> service, const std::string& own_account,
                  KnownIdentities known = {});

    ResultSet ExecQuery(std::string_view wql) override;

private:
    void learn();
    void learn(const ClassSchema& schema);
    void note(const Value& value, Identity identity);
    Value masked(const Value& value, Identity identity);
    Value masked_unknown(const Value& value);

    std::unique_ptr<ManagementService> service_;
    KnownIdentities known_;
    bool learnt_ = false;
    Pseudonyms accounts_;
    Pseudonyms folders_;
    Pseudonyms others_;
};

} // namespace ostrelum::inline masking
