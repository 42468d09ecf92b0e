#include "platform/linux/devices/Volumes.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

/// Systems of another kind than the recorded ones: the mount points of their volumes with one blank
/// behind each; "net:" for those on other machines, "far:" for local ones reached through such.
TEST(VolumeRule, ListsEachVolumeOnce)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"nothing", "", ""},
        {"a container whose root is a part of a file system",
         "20 1 0:50 /layers/7 / rw - ext4 /dev/sda1 rw\n", "/ "},
        {"an overlay as root", "20 1 0:50 / / rw - overlay overlay rw,lowerdir=/a\n", "/ "},
        {"pools", "20 1 0:30 / / rw - zfs tank/root rw\n21 20 0:31 / /home rw - zfs tank/home rw\n",
         "/ "},
        {"an image of links as root",
         "20 1 0:30 / / ro - overlay composefs ro\n21 20 8:3 / /sysroot ro - ext4 /dev/sda3 ro\n",
         "/ "},
        {"a mount that is its own parent", "5 5 8:1 / / rw - ext4 /dev/sda1 rw\n", "/ "},
        {"mounts that lie on each other, and one on a network's by way of another",
         "20 22 8:1 / /a rw - ext4 /dev/sda rw\n22 20 8:2 / /b rw - ext4 /dev/sdb rw\n"
         "23 1 0:9 / /n rw - nfs4 h:/ rw\n24 23 8:3 / /n/c rw - ext4 /dev/sdc rw\n"
         "25 24 8:4 / /n/c/d rw - ext4 /dev/sdd rw\n26 24 8:5 / /n/c/e rw - ext4 /dev/sde rw\n",
         "/a /b net:/n far:/n/c far:/n/c/d far:/n/c/e "},
        {"what programs mount of other machines",
         "20 1 8:1 / / rw - ext4 /dev/sda1 rw\n23 20 0:61 / /home/u/s rw - fuse.sshfs u@h: rw\n",
         "/ net:/home/u/s "},
        {"the old form of the table",
         "/dev/sda1 / ext4 rw 0 0\nproc /proc proc rw 0 0\nh:/x /net nfs rw 0 0\n"
         "/dev/sdb /net/d ext4 rw 0 0\n",
         "/ net:/net far:/net/d "},
        {"names with blanks and what ends a line, and a mount of nothing",
         "20 1 8:1 / /a\\040b rw - ext4 /dev/sda1 rw\n21 1 8:2 / /c\\012\\134\\400 rw - ext4  rw\n",
         "/a b /c\n\\\\400 "},
        {"lines of neither form, and one that is cut off",
         "\n# note\n20 1 8:1 / / rw ext4 /dev/sda1 rw\n21 1 8:2 / b rw - ext4 /dev/sda1 rw\nx /y\n"
         "22 1 8:3 / /last rw - ext4 /dev/sd",
         ""},
    };
    for (const auto& [what, table, volumes] : cases) {
        std::string listed;
        for (const auto& [mount, network, behind_network] : volumes_of(parse_mounts(table)))
            listed += (network ? "net:" : behind_network ? "far:" : "") + mount.target + " ";
        EXPECT_EQ(listed, volumes) << what;
    }
}

} // namespace
} // namespace ostrelum::linux_platform
