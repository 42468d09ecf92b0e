#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ostrelum {
namespace {

constexpr const char* Names = "Select Name, MaxClockSpeed from Win32_Processor";

void arm_core(std::string& cpuinfo, int number, const char* part)
{
    cpuinfo += "processor\t: " + std::to_string(number) +
               "\nmodel name\t: ARMv8 Processor rev 4 (v8l)\nCPU implementer\t: 0x41\n"
               "CPU architecture: 8\nCPU part\t: " +
               part + "\n\n";
}

TEST(Processor, CoresOfSeveralKindsMakeOne)
{
    const MadeMachine machine;
    const std::string cpu = "sys/devices/system/cpu/";
    std::string cpuinfo;
    const char* const parts[] = {"0xd03", "0xd03", "0xd09", "0xfff"};
    for (int i = 0; i < 4; ++i) {
        arm_core(cpuinfo, i, parts[i]);
        const std::string folder = cpu + "cpu" + std::to_string(i) + "/";
        machine.file(folder + "topology/physical_package_id", i < 2 ? "0\n" : "1\n");
        machine.file(folder + "cpufreq/cpuinfo_max_freq", i == 2 ? "2400000\n" : "1800000\n");
    }
    machine.file(cpu + "online", "0-3\n");
    machine.file("proc/cpuinfo", cpuinfo);
    machine.file("proc/sys/kernel/arch", "aarch64\n");
    EXPECT_THAT(machine.rows(Names), testing::ElementsAre("2400|Cortex-A53 + Cortex-A73"));
}

TEST(Processor, WithoutFrequencyFilesTheCounterTellsTheRatedClock)
{
    const std::pair<const char*, const char*> cases[] = {
        {"flags\t: fpu constant_tsc lm\nbogomips\t: 6387.31\n", "3194|R5"},
        {"flags\t: fpu constant_tsc lm\n", "1550|R5"},
        {"flags\t: fpu tsc lm\nbogomips\t: 6387.31\n", "1550|R5"},
    };
    for (const auto& [lines, row] : cases) {
        const MadeMachine machine;
        machine.file("proc/cpuinfo",
                     std::string("processor\t: 0\nmodel name\t: R5\ncpu MHz\t\t: 1550.2\n") +
                         lines);
        EXPECT_THAT(machine.rows(Names), testing::ElementsAre(row)) << lines;
    }
}

} // namespace
} // namespace ostrelum
