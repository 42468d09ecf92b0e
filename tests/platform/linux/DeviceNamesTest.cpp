#include "platform/linux/DeviceNames.h"

#include "tests/platform/linux/MadeHardwareDatabase.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(DeviceNames, PublishedOnesComeBeforeTheDatabase)
{
    const TemporaryFolder machine;
    const std::string slot = "0000:01:00.0";
    machine.file("sys/bus/pci/devices/" + slot + "/vendor", "0x10de\n");
    machine.file("sys/bus/pci/devices/" + slot + "/device", "0x1287\n");
    const Sysroot root(machine / "");
    EXPECT_FALSE(pci_names(root, slot).vendor);
    EXPECT_EQ(pci_code(root, slot), "10DE:1287");
    EXPECT_FALSE(pci_code(root, "0000:02:00.0"));

    machine.file("usr/lib/udev/hwdb.bin", hardware_database("pci:v000010DE", "Database maker"));
    EXPECT_EQ(pci_names(root, slot).vendor, "Database maker");
    EXPECT_FALSE(pci_names(root, slot).model);

    machine.file("run/udev/data/+pci:" + slot, "E:ID_VENDOR_FROM_DATABASE=Published maker\n");
    EXPECT_EQ(pci_names(root, slot).vendor, "Published maker");
}

TEST(DeviceNames, AMachineWithoutADatabaseHasNoneOfThisSystem)
{
    const TemporaryFolder machine;
    const Sysroot root(machine / "");
    EXPECT_FALSE(usb_vendor(root, 0x046D));
    EXPECT_EQ(monitor_maker(root, "LGD", true), "LG Display");
    EXPECT_EQ(monitor_maker(root, "ZZZ", true), "ZZZ");

    machine.file("etc/udev/hwdb.bin", "no database");
    EXPECT_FALSE(usb_vendor(root, 0x046D));
    machine.file("usr/lib/udev/hwdb.bin", hardware_database("usb:v046D", "Mouse maker"));
    EXPECT_EQ(usb_vendor(root, 0x046D), "Mouse maker");
    EXPECT_FALSE(usb_vendor(root, 0x046E));
}

TEST(DeviceNames, TakesTheNameBetweenBrackets)
{
    EXPECT_EQ(bracketed_name("GK208B [GeForce GT 730]"), "GeForce GT 730");
    EXPECT_EQ(bracketed_name("HD Graphics 620"), "HD Graphics 620");
    EXPECT_EQ(bracketed_name("Odd ] one [of these"), "Odd ] one [of these");
}

} // namespace
} // namespace ostrelum
