#include "platform/linux/Volumes.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

/// The mount points of a table's volumes, one blank behind each; "net:" for those on other
/// machines, "far:" for local ones that are reached through such.
std::string listed(const std::string& table)
{
    std::string text;
    for (const Volume& volume : volumes_of(parse_mounts(table)))
        text += (volume.network          ? "net:"
                 : volume.behind_network ? "far:"
                                         : "") +
                volume.mount.target + " ";
    return text;
}

const std::string Root = "20 1 8:1 / / rw - ext4 /dev/sda1 rw\n";

TEST(VolumeRule, ListsEachVolumeOnce)
{
    const struct {
        const char* what;
        std::string table, volumes;
    } cases[] = {
        {"nothing", "", ""},
        {"pseudo file systems and images",
         Root + "21 20 0:20 / /sys rw - sysfs sysfs rw\n22 20 0:21 / /tmp rw - tmpfs tmpfs rw\n"
                "23 20 7:0 / /opt/image ro - squashfs /dev/loop0 ro\n24 20 7:1 / /mnt/img rw - "
                "ext4 /dev/loop1 rw\n"
                "25 20 0:40 / /home/u/doc rw - fuse.portal portal rw\n",
         "/ "},
        {"the EFI partition, but not another FAT",
         Root + "21 20 8:2 / /boot/efi rw - vfat /dev/sda2 rw\n22 20 8:3 / /mnt/card rw - vfat "
                "/dev/sdb1 rw\n",
         "/ /mnt/card "},
        {"a bind mount and a container's files",
         Root + "21 20 8:1 /srv /export rw - ext4 /dev/sda1 rw\n22 20 8:9 /etc/hosts /etc/hosts rw "
                "- ext4 /dev/sdb1 rw\n",
         "/ "},
        {"subvolumes without the whole",
         Root + "21 20 0:41 /@home /home rw - btrfs /dev/sdb rw\n22 20 0:41 /@var /data/var rw - "
                "btrfs /dev/sdb rw\n",
         "/ /home "},
        {"a container whose root is a part of a file system",
         "20 1 0:50 /layers/7 / rw - ext4 /dev/sda1 rw\n", "/ "},
        {"an overlay as root", "20 1 0:50 / / rw - overlay overlay rw,lowerdir=/a\n", "/ "},
        {"the whole before a shorter way to a part",
         Root + "21 20 8:5 /x /a rw - ext4 /dev/sdb rw\n22 20 8:5 / /mnt/long/way rw - ext4 "
                "/dev/sdb rw\n",
         "/ /mnt/long/way "},
        {"what is mounted over something else",
         Root + "21 20 8:5 / /mnt rw - ext4 /dev/sdb rw\n22 21 0:30 / /mnt rw - tmpfs tmpfs rw\n",
         "/ "},
        {"network mounts and what lies behind them",
         Root +
             "21 20 0:60 / /net rw - nfs4 host:/x rw\n22 21 8:7 / /net/disk rw - ext4 /dev/sdc rw\n"
             "23 20 0:61 / /home/u/s rw - fuse.sshfs u@h: rw\n",
         "/ net:/home/u/s net:/net far:/net/disk "},
        {"a mount that is its own parent", "5 5 8:1 / / rw - ext4 /dev/sda1 rw\n", "/ "},
        {"media under /run",
         Root + "21 20 8:3 / /run/media/u/STICK rw - vfat /dev/sdb1 rw\n"
                "22 20 8:4 / /run/other rw - ext4 /dev/sdb2 rw\n",
         "/ /run/media/u/STICK "},
        {"blanks in a mount point", Root + "21 20 8:3 / /media/my\\040usb rw - vfat /dev/sdb1 rw\n",
         "/ /media/my usb "},
        {"pools", "20 1 0:30 / / rw - zfs tank/root rw\n21 20 0:31 / /home rw - zfs tank/home rw\n",
         "/ "},
        {"an image of links as root",
         "20 1 0:30 / / ro - overlay composefs ro\n21 20 8:3 / /sysroot ro - ext4 /dev/sda3 ro\n",
         "/ "},
        {"the old form of the table",
         "/dev/sda1 / ext4 rw 0 0\nproc /proc proc rw 0 0\nh:/x /net nfs rw 0 0\n/dev/sdb /net/d "
         "ext4 rw 0 0\n",
         "/ net:/net far:/net/d "},
        {"lines that are none",
         Root + "garbage\n\n\x01\xff 8:1\n21 20 8:2 / /d rw - ext4 /dev/sda2 rw\n", "/ /d "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(listed(c.table), c.volumes) << c.what;
}

} // namespace
} // namespace ostrelum
