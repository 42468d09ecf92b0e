#include "tests/platform/linux/MadeEdid.h"
#include "tests/platform/linux/MadeSysroot.h"

#include <gmock/gmock.h>

namespace ostrelum::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Mode = "Select CurrentHorizontalResolution, CurrentVerticalResolution, "
                         "CurrentBitsPerPixel, CurrentRefreshRate from Win32_VideoController";
const std::string Limits = "Select MinRefreshRate, MaxRefreshRate from Win32_VideoController";
const std::string Monitors = "Select * from Win32_DesktopMonitor";

void pci_card(const MadeSysroot& machine, const std::string& slot, const std::string& boot_vga,
              const std::string& drm)
{
    machine.device(slot, "drm/" + drm, {});
    machine.file("sys/devices/" + slot + "/class", "0x030000\n");
    machine.file("sys/devices/" + slot + "/boot_vga", boot_vga + "\n");
    machine.link("sys/bus/pci/devices/" + slot, "../../../devices/" + slot);
}

void monitor_at(const MadeSysroot& machine, const std::string& slot, const std::string& connector,
                const std::string& edid)
{
    machine.device(slot + "/drm", "drm/" + connector, {{"status", "connected"}});
    machine.file("sys/class/drm/" + connector + "/edid", edid);
}

SessionFactsSource screens(std::vector<ScreenFact> screens)
{
    return [=] { return SessionFacts{screens, std::nullopt}; };
}

TEST(Session, ScreensStandForMonitorsThatTellNothing)
{
    const MadeSysroot machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    monitor_at(machine, "0000:01:00.0", "card0-Virtual-1", "");
    EXPECT_THAT(machine.rows(Monitors), IsEmpty());
    const auto session = screens({{.connector = "screen"}, {.maker = "Maker", .model = "Model"}});
    EXPECT_THAT(machine.rows(Monitors, session), ElementsAre("Maker|Model"));

    monitor_at(machine, "0000:01:00.0", "card0-VGA-1", monitor());
    EXPECT_THAT(machine.rows(Monitors, session), ElementsAre("XYZ|XYZ 1234"));
}

TEST(Session, TheModeIsTheSessionsThenTheKernelsThenTheConsoles)
{
    const MadeSysroot machine;
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

TEST(Session, EachCardHasItsScreen)
{
    const MadeSysroot machine;
    pci_card(machine, "0000:01:00.0", "1", "card0");
    pci_card(machine, "0000:02:00.0", "0", "card1");
    monitor_at(machine, "0000:01:00.0", "card0-DP-1", monitor(descriptor(0xFD, "\x30\x4B")));
    monitor_at(machine, "0000:01:00.0", "card0-DP-2", monitor(descriptor(0xFD, "\x28\x64")));
    monitor_at(machine, "0000:02:00.0", "card1-HDMI-A-1", "");
    const auto session = screens({{"DP-1", "", "", 800, 600, 32, 60000, false},
                                  {"HDMI-A-1", "", "", 1024, 768, 32, 70000, false},
                                  {"DP-2", "", "", 1280, 720, 32, 75000, true}});
    EXPECT_THAT(machine.rows(Mode, session), ElementsAre("32|1280|75|720", "32|1024|70|768"));
    EXPECT_THAT(machine.rows(Limits, session), ElementsAre("100|40", "70|70"));
    // Names that the kernel does not know: no one can say which card shows them.
    const auto renamed = screens({{"XWAYLAND0", "", "", 640, 480, 32, 60000, true}});
    EXPECT_THAT(machine.rows(Mode, renamed), ElementsAre("32|640|60|480", "null|null|null|null"));
}

/// Two cards, the firmware's choice without a monitor and the other with four.
void hybrid_graphics(const MadeSysroot& machine)
{
    const std::string slot = "0000:02:00.0";
    pci_card(machine, "0000:01:00.0", "1", "card0");
    pci_card(machine, slot, "0", "card1");
    const auto named = [](const std::string& name, const char* rates) {
        return monitor(descriptor(0xFC, name + "\n") + descriptor(0xFD, rates));
    };
    monitor_at(machine, slot, "card1-DP-1", named("Left", "\x30\x4B"));
    monitor_at(machine, slot, "card1-DVI-D-1", named("Old", "\x32\x3C"));
    monitor_at(machine, slot, "card1-HDMI-A-1", named("Right", "\x28\x64"));
    monitor_at(machine, slot, "card1-eDP-1", named("Panel", "\x1E\x5A"));
}

TEST(Session, WhatIsToldIsOfThePrimaryScreen)
{
    const MadeSysroot machine;
    hybrid_graphics(machine);
    struct Case {
        std::string screen, model, monitor, limits, other = "DP-7";
    };
    for (const Case& each : {
             Case{"HDMI-A-1", "", "Right", "100|40"},
             Case{"HDMI-1", "", "Right", "100|40"},
             Case{"HDMI1", "", "Right", "100|40"},
             Case{"HDMI-A-0", "", "Right", "100|40"},
             Case{"DisplayPort-0", "", "Left", "75|48"},
             Case{"DVI-1", "", "Old", "60|50"},
             Case{"eDP", "", "Panel", "90|30", "HDMI-A-0"},
             Case{"DVI-D-1", "Right", "Old", "60|50"},
             Case{"HDMI-0", "Left", "Left", "75|48"},
             Case{"DP-4", "Right", "Right", "100|40"},
         }) {
        const auto session = screens({{each.other, "", "", 1024, 768, 32, 60000, false},
                                      {each.screen, "", each.model, 800, 600, 32, 75000, true}});
        EXPECT_EQ(machine.rows(Monitors, session)[0], "XYZ|" + each.monitor) << each.screen;
        EXPECT_EQ(machine.rows(Mode, session)[0], "32|800|75|600") << each.screen;
        EXPECT_EQ(machine.rows(Limits, session)[0], each.limits) << each.screen;
    }
}

TEST(Session, WithoutOneTheFirmwaresCardComesBeforeThoseWithMonitors)
{
    const MadeSysroot machine;
    hybrid_graphics(machine);
    EXPECT_EQ(machine.rows(Limits)[0], "null|null");
    machine.file("sys/devices/0000:01:00.0/boot_vga", "0\n");
    EXPECT_EQ(machine.rows(Limits)[0], "75|48") << "a card with a monitor";
    machine.file("sys/class/drm/card1-DP-1/enabled", "disabled\n");
    EXPECT_EQ(machine.rows(Limits)[0], "60|50") << "a monitor that is on";
    EXPECT_EQ(machine.rows(Monitors)[0], "XYZ|Old");
    machine.file("sys/devices/0000:01:00.0/boot_display", "1\n");
    EXPECT_EQ(machine.rows(Limits)[0], "null|null");
}

TEST(Session, PointersAreForTheHandOfTheSession)
{
    const MadeSysroot machine;
    machine.device("platform/i8042/serio1", "input/input0",
                   {{"capabilities/key", "70000 0 0 0 0"}, {"capabilities/rel", "3"}});
    for (const auto& [left_handed, row] : {std::pair(std::optional(true), "3"),
                                           {std::optional(false), "2"},
                                           {std::optional<bool>(), "2"}}) {
        const SessionFacts session{{}, left_handed};
        EXPECT_THAT(
            machine.rows("Select Handedness from Win32_PointingDevice", [&] { return session; }),
            ElementsAre(row));
    }
}

} // namespace
} // namespace ostrelum::linux_platform
