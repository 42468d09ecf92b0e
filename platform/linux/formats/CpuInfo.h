#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// One paragraph of /proc/cpuinfo: what the kernel says of a logical processor. It points into the
/// text.
class CpuRecord {
public:
    explicit CpuRecord(std::string_view paragraph) : paragraph_(paragraph) {}

    /// The value behind the first of the labels that has one; labels differ between kinds of
    /// processor.
    std::optional<std::string> text(std::initializer_list<std::string_view> labels) const;
    /// A number, decimal or after "0x" hexadecimal.
    std::optional<std::uint64_t> number(std::string_view label) const;
    /// The clock in MHz.
    std::optional<double> megahertz() const;
    /// The rated clock in MHz, for an x86 processor whose time stamp counter keeps to it (flag
    /// "constant_tsc"): the kernel's "bogomips" is then twice that counter's.
    std::optional<double> rated_megahertz() const;

private:
    std::string_view paragraph_;
};

/// All of /proc/cpuinfo.
class CpuInfo {
public:
    explicit CpuInfo(std::string text);
    CpuInfo(const CpuInfo&) = delete;
    CpuInfo& operator=(const CpuInfo&) = delete;

    /// The paragraph of a logical processor; the first one where it has none, and all of the text
    /// where the processors are not numbered.
    CpuRecord of(std::uint64_t cpu) const;

    /// The paragraphs of logical processors, each once.
    std::vector<CpuRecord> of_all(const std::vector<std::uint64_t>& cpus) const;

private:
    const CpuRecord& other() const;

    std::string text_;
    CpuRecord whole_;
    std::map<std::uint64_t, CpuRecord> records_;
};

/// Makers and names of ARM processors by the codes of their identification register (MIDR_EL1: Arm
/// Architecture Reference Manual; part numbers from the processors' Technical Reference Manuals).
/// Nothing for a code not known.
std::optional<std::string> arm_maker(std::uint64_t implementer);
std::optional<std::string> arm_name(std::uint64_t implementer, std::uint64_t part);

/// The clock that a name ends in, such as 2600 MHz of "... @ 2.60GHz".
std::optional<std::uint64_t> megahertz_in_name(std::string_view name);

} // namespace ostrelum::linux_platform
