#include "platform/linux/formats/CpuInfo.h"

#include "platform/linux/text/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace ostrelum::linux_platform {
namespace {

std::optional<double> real_number(std::string_view text)
{
    double number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = end.ec == std::errc() && end.ptr == text.data() + text.size();
    return whole && std::isfinite(number) && number > 0 ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::string> CpuRecord::text(std::initializer_list<std::string_view> labels) const
{
    for (const std::string_view label : labels) {
        const auto value = value_behind(paragraph_, label, ':');
        if (auto found = value ? text_or_none(*value) : std::nullopt)
            return found;
    }
    return std::nullopt;
}

std::optional<std::uint64_t> CpuRecord::number(std::string_view label) const
{
    const std::string value = text({label}).value_or("");
    return value.starts_with("0x") ? whole_number(std::string_view(value).substr(2), 16)
                                   : whole_number(value);
}

std::optional<double> CpuRecord::megahertz() const
{
    const auto value = text({"cpu MHz", "CPU MHz", "clock"});
    return value ? real_number(std::string_view(*value).substr(0, value->find("MHz")))
                 : std::nullopt;
}

std::optional<double> CpuRecord::rated_megahertz() const
{
    const std::string flags = text({"flags"}).value_or("");
    const auto words = words_of(flags);
    const auto doubled = real_number(text({"bogomips"}).value_or(""));
    const bool constant = std::ranges::find(words, "constant_tsc") != words.end();
    return constant && doubled ? std::optional(*doubled / 2) : std::nullopt;
}

CpuInfo::CpuInfo(std::string text) : text_(std::move(text)), whole_(text_)
{
    for (std::string_view rest = text_; !rest.empty();) {
        const auto end = std::min(rest.find("\n\n"), rest.size());
        const CpuRecord record(rest.substr(0, end));
        if (const auto cpu = record.number("processor"))
            records_.emplace(*cpu, record);
        rest.remove_prefix(std::min(end + 2, rest.size()));
    }
}

CpuRecord CpuInfo::of(std::uint64_t cpu) const
{
    const auto record = records_.find(cpu);
    return record == records_.end() ? other() : record->second;
}

std::vector<CpuRecord> CpuInfo::of_all(const std::vector<std::uint64_t>& cpus) const
{
    std::vector<CpuRecord> all;
    bool others = false;
    for (const std::uint64_t cpu : cpus) {
        const auto record = records_.find(cpu);
        if (record != records_.end())
            all.push_back(record->second);
        others |= record == records_.end();
    }
    // A sandbox may number the processors that it shows anew.
    if (others && all.empty())
        all.push_back(other());
    return all;
}

const CpuRecord& CpuInfo::other() const
{
    return records_.empty() ? whole_ : records_.begin()->second;
}

std::optional<std::uint64_t> megahertz_in_name(std::string_view name)
{
    const auto at = name.rfind('@');
    const auto unit = name.rfind("GHz");
    if (at == name.npos || unit == name.npos || unit < at)
        return std::nullopt;
    const auto gigahertz = real_number(trimmed_space(name.substr(at + 1, unit - at - 1)));
    if (!gigahertz || *gigahertz > 100)
        return std::nullopt;
    return static_cast<std::uint64_t>(std::lround(*gigahertz * 1000));
}

} // namespace ostrelum::linux_platform
