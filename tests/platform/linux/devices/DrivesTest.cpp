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

/// A stick, or a reader's slot, on USB.
std::string add_removable(const MadeSysroot& root, const std::string& name,
                          const std::string& number, const std::string& sectors,
                          const std::string& udev = "")
{
    std::string place = "usb1/" + name + "/block/" + name;
    add_block(root, place, number, sectors, udev);
    root.file("sys/devices/" + place + "/removable", "1\n");
    return place + "/" + name;
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

/// As only a stranger's recording can have them.
TEST(Drives, OnesThatLieOnEachOtherAreLookedAtOnce)
{
    const MadeSysroot root;
    std::string mounts;
    for (int each = 0; each < 40; ++each) {
        const std::string number = std::to_string(each);
        const std::string name = "dm-" + number;
        add_block(root, "virtual/block/" + name, "253:" + number, "9000");
        for (const int step : {0, 1, 2, 39})
            root.link("sys/devices/virtual/block/" + name + "/slaves/dm-" +
                          std::to_string((each + step) % 40),
                      "..");
        mounts += std::to_string(each + 2) + " 1 253:" + number + " / /" + name +
                  " rw - ext4 /dev/" + name + " rw\n";
    }
    add_removable(root, "sdb", "8:16", "6000");
    root.file("proc/self/mountinfo", mounts);
    EXPECT_EQ(root.rows("Select Name from Win32_LogicalDisk where DriveType = 3").size(), 40U);
    root.link("sys/devices/virtual/block/dm-7/slaves/sdb", "..");
    EXPECT_EQ(root.rows("Select Name from Win32_LogicalDisk where DriveType = 2").size(), 40U);
}

TEST(Drives, WhatNobodyCanTellOfAVolumeThatIsThereIsAnEmptyText)
{
    const MadeSysroot root;
    const std::string date = "E:ID_FS_UUID=2024-04-23-11-38-47-00\n";
    add_removable(root, "sdb", "8:16", "6000", date);
    add_block(root, "ata2/block/sr0", "11:0", "7000", "E:ID_CDROM=1\nE:ID_CDROM_MEDIA=1\n");
    add_block(root, "ata3/block/sr1", "11:1", "8000", "E:ID_CDROM=1\n");
    add_block(root, "ata4/block/sr2", "11:2", "9000",
              "E:ID_CDROM=1\nE:ID_CDROM_MEDIA=1\nE:ID_FS_TYPE=iso9660\n" + date);
    root.file("proc/self/mountinfo", "20 1 8:16 / /stick ro - iso9660 /dev/sdb ro\n"
                                     "21 1 0:40 / /net rw - nfs4 h:/x rw\n"
                                     "22 1 0:41 / / rw - overlay overlay rw\n");
    EXPECT_EQ(root.rows("Select Name, FileSystem, VolumeSerialNumber from Win32_LogicalDisk"),
              (Rows{"overlay|/|", "nfs4|/net|null", "CDFS|/stick|", "/dev/sr0|",
                    "null|/dev/sr1|null", "CDFS|/dev/sr2|"}));
}

TEST(Drives, WhatIsPluggedInButNotMountedIsThereWithoutAFreeSpace)
{
    const MadeSysroot root;
    add_block(root, "ata1/block/sda", "8:0", "9000");
    add_block(root, "ata1/block/sda/sda1", "8:1", "8000");
    add_block(root, "pci/mmc0/block/mmcblk0", "179:0", "9000");
    add_block(root, "pci/mmc0/block/mmcblk0/mmcblk0p1", "179:1", "8000");
    root.file("sys/devices/pci/mmc0/block/mmcblk0/device/type", "SD\n");
    const std::string stick = add_removable(root, "sdb", "8:16", "9000");
    add_block(root, stick + "1", "8:17", "1000", "E:ID_FS_LABEL_ENC=EFI\n");
    add_block(root, stick + "2", "8:18", "7000",
              "E:ID_FS_LABEL_ENC=DATA\nE:ID_FS_TYPE=exfat\nE:ID_FS_UUID=AB12-CD34\n");
    add_removable(root, "sdc", "8:32", "0");
    const std::string half = add_removable(root, "sdd", "8:48", "9000");
    add_block(root, half + "1", "8:49", "4000");
    add_block(root, half + "2", "8:50", "4500");
    add_removable(root, "sde", "8:64", "6000");
    const char* const volumes =
        "Select Caption, DriveType, FileSystem, FreeSpace, Size, VolumeName, "
        "VolumeSerialNumber from Win32_LogicalDisk";
    root.file("proc/self/mountinfo", "20 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                     "21 1 8:49 / /boot/efi rw - vfat /dev/sdd1 rw\n");
    EXPECT_EQ(root.rows(volumes), (Rows{"/dev/mmcblk0p1|2||null|4096000||",
                                        "/dev/sdb2|2|exFAT|null|3584000|DATA|AB12CD34",
                                        "/dev/sde|2||null|3072000||", "/|3|ext4|null|null||"}));
    root.file("proc/self/mountinfo", "");
    EXPECT_EQ(root.rows(volumes), Rows{}) << "nobody can tell what is mounted";
}

} // namespace
} // namespace ostrelum::linux_platform
