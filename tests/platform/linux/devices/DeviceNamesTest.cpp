#include "platform/linux/devices/DeviceNames.h"

#include "platform/linux/recording/RecordedIdentities.h"
#include "platform/linux/recording/RecordedSystemCalls.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

MachineView recorded(const TemporaryFolder& folder)
{
    const Sysroot root(folder / "");
    return {root, recorded_system_calls(root), {}, recorded_identities()};
}

/// A compiled hardware database (its trie, version 1) with a valid head, whose root lies 128 TiB
/// behind its end.
std::string endless_database()
{
    std::string bytes = "KSLPHHRH";
    for (const std::uint64_t number :
         {252ULL, 145ULL, 80ULL, 24ULL, 16ULL, 16ULL, 0x7FFFFFFFFFFFULL, 64ULL, 1ULL}) {
        for (unsigned shift = 0; shift < 64; shift += 8)
            bytes += static_cast<char>(number >> shift);
    }
    return bytes + std::string(145 - bytes.size(), '\0');
}

TEST(DeviceNames, PublishedOnesComeBeforeThoseRecorded)
{
    const TemporaryFolder folder;
    const std::string slot = "0000:01:00.0";
    const auto maker = [&] { return pci_names(recorded(folder), slot).vendor.value_or("nobody"); };
    folder.file("sys/bus/pci/devices/" + slot + "/vendor", "0x10de\n");
    EXPECT_FALSE(pci_code(recorded(folder).root, slot));
    folder.file("sys/bus/pci/devices/" + slot + "/device", "0x1287\n");
    EXPECT_EQ(pci_code(recorded(folder).root, slot), "10DE:1287");
    for (const char* place : {"etc/systemd/hwdb/hwdb.bin", "etc/udev/hwdb.bin"})
        folder.file(place, endless_database());
    EXPECT_EQ(maker(), "nobody") << "the library trusts what it reads";
    EXPECT_EQ(monitor_maker(recorded(folder), "ZZZ", true), "ZZZ");

    folder.file(".facts/hwdb", "pci:v000010DE ID_VENDOR_FROM_DATABASE=Recorded maker\n");
    EXPECT_EQ(maker(), "Recorded maker");
    EXPECT_FALSE(pci_names(recorded(folder), slot).model);
    EXPECT_FALSE(usb_vendor(recorded(folder), 0x10DE));

    folder.file("run/udev/data/+pci:" + slot, "E:ID_VENDOR_FROM_DATABASE=Published maker\n");
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
