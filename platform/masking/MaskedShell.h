#pragma once

#include "platform/masking/KnownIdentities.h"
#include "platform/system/Shell.h"

#include <memory>
#include <string>

namespace ostrelum::inline masking {

/// Passes on to another shell object, and hides what the texts of its values mention. The user's
/// folders are where they are.
class MaskedShell : public Shell {
public:
    MaskedShell(std::unique_ptr<Shell> shell, KnownIdentities known);

    RegValue RegRead(const std::string& name) override;
    void RegWrite(const std::string& name, const RegValue& value, const std::string& type) override;
    std::string SpecialFolders(const std::string& name) override;

private:
    std::unique_ptr<Shell> shell_;
    KnownIdentities known_;
    Pseudonyms given_;
};

} // namespace ostrelum::inline masking
