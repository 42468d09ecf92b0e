#include "platform/linux/BuildDate.h"
#include "tests/platform/linux/MadeEdid.h"
#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Mode = "Select CurrentHorizontalResolution, CurrentVerticalResolution, "
                         "CurrentBitsPerPixel, CurrentRefreshRate from Win32_VideoController";
const std::string Monitors = "Select * from Win32_DesktopMonitor";

void pci_card(const MadeMachine& machine, const std::string& slot, const std::string& boot_vga,
              const std::string& drm)
{
    machine.device(slot, "drm/" + drm, {{"dev", "226:0"}});
    machine.file("sys/devices/" + slot + "/class", "0x030000\n");
    machine.file("sys/devices/" + slot + "/boot_vga", boot_vga + "\n");
    machine.link("sys/bus/pci/devices/" + slot, "../../../devices/" + slot);
    machine.link("sys/devices/" + slot + "/driver", "../../bus/pci/drivers/drv-" + drm);
}

void monitor_at(const MadeMachine& machine, const std::string& slot, const std::string& connector,
                const std::string& edid, const std::string& status = "connected")
{
    machine.device(slot + "/drm", "drm/" + connector, {{"status", status}});
    machine.file("sys/class/drm/" + connector + "/edid", edid);
}

SessionFactsSource screens(std::vector<ScreenFact> screens)
{
    return [=] { return SessionFacts{screens, std::nullopt}; };
}

TEST(Graphics, TheFirmwaresCardIsTheFirst)
{
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "0", "card0");
    pci_card(machine, "0000:0a:00.0", "1", "card1");
    machine.device("platform/gpu", "drm/card2", {});
    machine.link("sys/devices/platform/gpu/drm/card2/device", "../..");
    machine.link("sys/devices/platform/gpu/driver", "../../../bus/platform/drivers/board-drm");
    machine.device("platform/evdi.0", "drm/card3", {});
    machine.link("sys/devices/platform/evdi.0/drm/card3/device", "../..");
    machine.link("sys/devices/platform/evdi.0/driver", "../../../bus/platform/drivers/evdi");
    machine.device("platform/vkms", "drm/card4", {});
    machine.file("sys/devices/0000:02:00.0/class", "0x020000\n");
    machine.link("sys/bus/pci/devices/0000:02:00.0", "../../../devices/0000:02:00.0");
    EXPECT_THAT(machine.rows("Select Name from Win32_VideoController"),
                ElementsAre("drv-card1", "drv-card0", "board-drm"));

    monitor_at(machine, "0000:01:00.0", "card0-DP-1", monitor(descriptor(0xFC, "Second\n")));
    monitor_at(machine, "0000:0a:00.0", "card1-HDMI-A-1", monitor(descriptor(0xFC, "First\n")));
    monitor_at(machine, "0000:0a:00.0", "card1-DP-1", monitor(), "disconnected");
    EXPECT_THAT(machine.rows(Monitors), ElementsAre("XYZ|First", "XYZ|Second"));
}

TEST(Graphics, MonitorsAreCalledByTheBestTheyTell)
{
    const std::pair<std::string, const char*> cases[] = {
        {descriptor(0xFE, "Part 1\n") + descriptor(0xFC, "Name\n"), "XYZ|Name"},
        {descriptor(0xFE, "Part 1\n"), "XYZ|Part 1"},
        {"", "XYZ|XYZ 1234"}};
    for (const auto& [told, row] : cases) {
        const MadeMachine machine;
        pci_card(machine, "0000:01:00.0", "1", "card0");
        monitor_at(machine, "0000:01:00.0", "card0-eDP-1", monitor(told));
        EXPECT_THAT(machine.rows(Monitors), ElementsAre(row));
    }
}

TEST(Graphics, ScreensStandForMonitorsThatTellNothing)
{
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    monitor_at(machine, "0000:01:00.0", "card0-Virtual-1", "");
    EXPECT_THAT(machine.rows(Monitors), IsEmpty());
    const auto session = screens({{.connector = "screen"}, {.maker = "Maker", .model = "Model"}});
    EXPECT_THAT(machine.rows(Monitors, session), ElementsAre("Maker|Model"));

    monitor_at(machine, "0000:01:00.0", "card0-VGA-1", monitor());
    EXPECT_THAT(machine.rows(Monitors, session), ElementsAre("XYZ|XYZ 1234"));
}

TEST(Graphics, TheModeIsTheSessionsThenTheKernelsThenTheConsoles)
{
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("null|null|null|null"));

    // 146.25 MHz over 1700 + 100 columns and 1083 lines: 75.023 Hz.
    monitor_at(machine, "0000:01:00.0", "card0-DP-1",
               monitor(mode(15400, 1900, 1200, 45) + mode(14625, 1700, 1050, 33)));
    const std::string console = "sys/devices/0000:01:00.0/graphics/fb0/";
    machine.file(console + "bits_per_pixel", "32\n");
    machine.file(console + "virtual_size", "1700,1050\n");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|1700|75|1050"));
    machine.file(console + "virtual_size", "1024,768\n");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|1024|null|768")) << "no mode of the monitor";

    const auto scaled = screens({{"DP-1", "", "", 1899, 1200, 32, 59900, true}});
    EXPECT_THAT(machine.rows(Mode, scaled), ElementsAre("32|1899|60|1200"));
    machine.file(".facts/modes", "card0-DP-1 1900 1200 32 61847\n");
    EXPECT_THAT(machine.rows(Mode, scaled), ElementsAre("32|1900|62|1200"));
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|1900|62|1200"));

    machine.file("sys/class/drm/card0-DP-1/enabled", "disabled\n");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|1024|null|768"))
        << "a card at rest is not woken";
    machine.file(console + "virtual_size", "1024,1536\n");
    machine.file(console + "modes", "U:1024x768p-0\n");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|1024|null|768")) << "room to scroll in";
    machine.file(console + "modes", "U:640x480p-60\nU:800x600p-60\n");
    machine.file(console + "mode", "U:800x600p-60\n");
    EXPECT_THAT(machine.rows(Mode), ElementsAre("32|800|null|600")) << "the one in use";
}

TEST(Graphics, EachCardHasItsScreen)
{
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    pci_card(machine, "0000:02:00.0", "0", "card1");
    monitor_at(machine, "0000:01:00.0", "card0-DP-1", monitor(descriptor(0xFD, "\x30\x4B")));
    monitor_at(machine, "0000:01:00.0", "card0-DP-2", monitor(descriptor(0xFD, "\x28\x64")));
    monitor_at(machine, "0000:02:00.0", "card1-HDMI-A-1", "");
    const auto session = screens({{"DP-1", "", "", 800, 600, 32, 60000, false},
                                  {"HDMI-A-1", "", "", 1024, 768, 32, 70000, false},
                                  {"DP-2", "", "", 1280, 720, 32, 75000, true}});
    EXPECT_THAT(machine.rows(Mode, session), ElementsAre("32|1280|75|720", "32|1024|70|768"));
    EXPECT_THAT(
        machine.rows("Select MinRefreshRate, MaxRefreshRate from Win32_VideoController", session),
        ElementsAre("100|40", "70|70"));
    // Names that the kernel does not know: no one can say which card shows them.
    const auto renamed = screens({{"DisplayPort-0", "", "", 640, 480, 32, 60000, true}});
    EXPECT_THAT(machine.rows(Mode, renamed), ElementsAre("32|640|60|480", "null|null|null|null"));
}

TEST(Graphics, MemoryIsTheDriversFigure)
{
    const std::string query = "Select AdapterRAM from Win32_VideoController";
    const std::string device = "sys/devices/0000:01:00.0/";
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    machine.file(".facts/vram", "0000:01:00.0 85899345920\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("null")) << "not for a driver of the kernel";

    machine.link("sys/bus/pci/drivers/drv-card0/module", "../../../../module/nvidia");
    EXPECT_THAT(machine.rows(query), ElementsAre("85899345920"));
    machine.file(device + "power/runtime_status", "suspended\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("null"));

    machine.file("sys/class/drm/card0/lmem_total_bytes", "100\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("100"));
    machine.file(device + "tile0/physical_vram_size_bytes", "200\n");
    machine.file(device + "tile1/physical_vram_size_bytes", "300\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("500"));
    machine.file(device + "mem_info_vram_total", "0\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("null"));
}

TEST(Graphics, ADriverOfItsOwnHasItsOwnDate)
{
    const std::string query = "Select DriverDate, DriverVersion from Win32_VideoController";
    const MadeMachine machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    machine.link("sys/bus/pci/drivers/drv-card0/module", "../../../../module/nvidia");
    machine.file("sys/module/nvidia/version", "580.1\n");
    machine.file("proc/version",
                 "Linux version 6.1 (gcc (GCC) 1 Jan 1 1999) #1 SMP (2024-11-22)\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("null|580.1"));
    machine.file("proc/driver/nvidia/version",
                 "NVRM version: Module 580.1  Wed Oct  2 09:19:07 UTC 2022\n");
    EXPECT_THAT(machine.rows(query), ElementsAre("20221002000000.000000+000|580.1"));

    machine.file("sys/module/i915/refcnt", "1\n");
    std::filesystem::remove(machine.file("sys/bus/pci/drivers/drv-card0/module", ""));
    machine.file("proc/sys/kernel/osrelease", "6.1.0-28\n");
    machine.link("sys/bus/pci/drivers/drv-card0/module", "../../../../module/i915");
    EXPECT_THAT(machine.rows(query), ElementsAre("20241122000000.000000+000|6.1.0-28"));
}

TEST(Graphics, DaysInBuildLines)
{
    using namespace std::chrono;
    EXPECT_EQ(build_date("#45-Ubuntu SMP Fri Aug 30 12:02:04 UTC 2024"), 2024y / August / 30);
    EXPECT_EQ(build_date("#1 SMP PREEMPT_DYNAMIC Debian 6.1.119-1 (2024-11-22)"),
              2024y / November / 22);
    EXPECT_EQ(build_date("#1 Wed May  1 07:11:28 PM CEST 2024"), 2024y / May / 1);
    for (const char* none : {"#1 Thu Feb 30 07:11:28 UTC 2023", "#1 Thu Feb 28 07:11:28 UTC",
                             "(2024-13-01) (2024/11/22) Jan", ""})
        EXPECT_EQ(build_date(none), std::nullopt) << none;
}

} // namespace
} // namespace ostrelum
