#include "tests/platform/linux/MadeSysroot.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

using Rows = std::vector<std::string>;

/// A block device with its files at a place under /sys/devices, and what udev says of it.
void add_block(const MadeSysroot& root, const std::string& place, const std::string& number,
               const std::string& sectors, const std::string& udev = "")
{
    const std::string name = place.substr(place.rfind('/') + 1);
    const bool is_partition =
        place.find("block/" + name) == place.npos && !name.starts_with("nvme");
    root.file("sys/devices/" + place + "/dev", number + "\n");
    root.file("sys/devices/" + place + "/size", sectors + "\n");
    if (is_partition)
        root.file("sys/devices/" + place + "/partition", "1\n");
    else
        root.link("sys/block/" + name, "../devices/" + place);
    root.link("sys/class/block/" + name, "../../devices/" + place);
    root.link("sys/dev/block/" + number, "../../devices/" + place);
    root.file("run/udev/data/b" + number, udev);
}

TEST(Drives, SeveralWaysToADriveOfNvmeAreThatDrive)
{
    const MadeSysroot root;
    const std::string subsystem = "virtual/nvme-subsystem/nvme-subsys0";
    root.file("sys/devices/" + subsystem + "/model", "Fast 990\n");
    add_block(root, subsystem + "/nvme0n1", "259:1", "9000");
    root.link("sys/devices/" + subsystem + "/nvme0n1/device", "../../nvme-subsys0");
    root.file("sys/devices/" + subsystem + "/nvme0n1/nvme0n1p1/partition", "1\n");
    root.file("sys/devices/" + subsystem + "/nvme0n1/nvme0n1p1/size", "8000\n");
    add_block(root, "pci/nvme/nvme0/nvme0c0n1", "259:0", "9000");
    root.file("sys/devices/pci/nvme/nvme0/nvme0c0n1/hidden", "1\n");
    EXPECT_EQ(root.rows("Select Caption, InterfaceType, Partitions from Win32_DiskDrive"),
              Rows{"Fast 990|SCSI|1"});
}

} // namespace
} // namespace ostrelum::linux_platform
