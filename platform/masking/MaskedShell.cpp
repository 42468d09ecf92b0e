#include "platform/masking/MaskedShell.h"

#include <utility>

namespace ostrelum::inline masking {

MaskedShell::MaskedShell(std::unique_ptr<Shell> shell, KnownIdentities known)
    : shell_(std::move(shell)), known_(std::move(known))
{
}

RegValue MaskedShell::RegRead(const std::string& name)
{
    RegValue value = shell_->RegRead(name);
    if (auto* text = std::get_if<std::string>(&value))
        *text = known_.hidden_in(*text, Writer::Maker, given_);
    return value;
}

void MaskedShell::RegWrite(const std::string& name, const RegValue& value, const std::string& type)
{
    shell_->RegWrite(name, value, type);
}

std::string MaskedShell::SpecialFolders(const std::string& name)
{
    return shell_->SpecialFolders(name);
}

} // namespace ostrelum::inline masking
