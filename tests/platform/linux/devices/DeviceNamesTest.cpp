#include "platform/linux/devices/DeviceNames.h"

#include "tests/platform/linux/MadeHardwareDatabase.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

TEST(DeviceNames, PublishedOnesComeBeforeTheMachinesOwnDatabase)
{
    const TemporaryFolder machine;
    const std::string slot = "0000:01:00.0";
    const Sysroot root(machine / "");
    const auto maker = [&] { return pci_names(root, slot).vendor.value_or("nobody"); };
    machine.file("sys/bus/pci/devices/" + slot + "/vendor", "0x10de\n");
    EXPECT_FALSE(pci_code(root, slot));
    machine.file("sys/bus/pci/devices/" + slot + "/device", "0x1287\n");
    EXPECT_EQ(pci_code(root, slot), "10DE:1287");
    EXPECT_EQ(maker(), "nobody");
    EXPECT_EQ(monitor_maker(root, "ZZZ", true), "ZZZ");

    machine.file("etc/udev/hwdb.bin", "no database");
    EXPECT_EQ(maker(), "nobody");
    machine.file("usr/lib/udev/hwdb.bin", hardware_database("pci:v000010DE", "Database maker"));
    EXPECT_EQ(maker(), "Database maker");
    EXPECT_FALSE(pci_names(root, slot).model);
    EXPECT_FALSE(usb_vendor(root, 0x10DE));

    machine.file("run/udev/data/+pci:" + slot, "E:ID_VENDOR_FROM_DATABASE=Published maker\n");
    EXPECT_EQ(maker(), "Published maker");
}

TEST(DeviceNames, TakesTheNameBetweenBrackets)
{
    EXPECT_EQ(bracketed_name("GK208B [GeForce GT 730]"), "GeForce GT 730");
    EXPECT_EQ(bracketed_name("HD Graphics 620"), "HD Graphics 620");
    EXPECT_EQ(bracketed_name("Odd ] one [of these"), "Odd ] one [of these");
}

} // namespace
} // namespace ostrelum::linux_platform
