#include "platform/linux/files/WholeFile.h"
#include "platform/linux/formats/Edid.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/recording/MaskedBytes.h"
#include "platform/linux/recording/MaskedTexts.h"
#include "tests/platform/linux/MadeEdid.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

using namespace std::string_literals;

/// Forms that no recorded machine has. The same name has the same pseudonym in all files.
TEST(Masked, LeavesOfEachTextWhatIdentifiesNobody)
{
    MachinePseudonyms given{.shown = {"alma"}};
    const std::string model = "t10.ATA     SSD 860 EVO 500GB" + std::string(23, ' ');
    const struct {
        std::string (*masked)(const std::string&, MachinePseudonyms&);
        std::string before, after;
    } cases[] = {
        {masked_disk_identity, model + "S3Z1NB0K1\n", model + "(hidden)\n"},
        {masked_disk_identity, "t10.ATA SSD S3Z1\n", "(hidden 2)\n"},
        {masked_disk_identity, "naa.5002538e40a1b2c3\n", "(hidden 3)\n"},
        {masked_name, "luks-1c5a7e90\n", "(hidden 4)\n"},
        {masked_mounts,
         "28 1 0:41 /@ / rw shared:1 - btrfs /dev/mapper/luks-1c5a7e90 rw,subvol=/@\n"
         "29 28 0:50 / /media/alma/a\\040b rw - cifs //nas/alma rw,username=alma\n",
         "28 1 0:41 /(hidden\\0405) / rw - btrfs /dev/mapper/(hidden\\0404) rw\n"
         "29 28 0:50 / /media/(hidden\\0406)/(hidden\\0407) rw - cifs "
         "//(hidden\\0408)/(hidden\\0406) rw\n"},
        {masked_mounts, "/dev/sda1 /mnt/my ext4 rw 0 0\n",
         "/dev/sda1 /mnt/(hidden\\0409) ext4 rw 0 0\n"},
        {masked_cpuinfo, "Hardware\t: BCM2835\nSerial\t\t: 00000000abcdef01\n",
         "Hardware\t: BCM2835\n"},
        {masked_cpuinfo, "processor 0: version = FF,  identification = 0133E8\n",
         "processor 0: version = FF,  \n"},
        {only_model, "Manufacturer: IBM\nModel: 701\nSequence Code: 86EA7\nLPAR Name: ALMA\n",
         "Manufacturer: IBM\nModel: 701\n"},
        {masked_boot_menu, "GRUB_TIMEOUT=5\nGRUB_CMDLINE_LINUX=\"root=UUID=1c5a\"\n",
         "GRUB_TIMEOUT=5\n"},
        {masked_accounts, "daemon:x:1:1::/:\nalma:x:1000:100:Alma Kestrel,4:/home/alma:/bin/sh\n",
         "(hidden):x:1000:100:(hidden)::\n"},
        {masked_groups, "larch:x:9:alma\nsudo:x:27:root,alma\n", "sudo:x:27:root,(hidden)\n"},
        {masked_machine_id, "3b7c61f04d7a4c0e9f5521d88e90ab17\n", "(hidden)\n"},
        {hidden_line, "4KQ7ZX1\n", "(hidden)\n"},
        {hidden_line, "2222\n", "(hidden)\n"},
        {hidden_serial, "2222\n", "2222\n"},
        {masked_process, "12 (alma) 's (job) S 1 12\n", "0 ((hidden)) S 1 12\n"},
        {masked_kernel, "Linux version 6.1 (alma@larch) #1 SMP\n", "(hidden) #1 SMP\n"},
        {masked_kernel, "Linux version 6.1 (alma@larch)\n", ""},
        {masked_udev,
         "S:disk/by-id/S3Z1\nE:ID_WWN=0x5002\nE:ID_MODEL=SSD\nE:ID_FS_UUID=1c5a\n"
         "E:MEMORY_DEVICE_0_ASSET_TAG=A1\nE:ID_PART_ENTRY_UUID=77\n",
         "E:ID_MODEL=SSD\nE:ID_FS_UUID=(hidden)\n"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.masked(each.before, given), each.after);
}

TEST(Masked, BlotsOutSerialNumbersInTheFirmwareTable)
{
    const std::string identity = "identity-of-mine";
    const std::string table = "\x01\x1B\0\0\x01\x02\x02\x03"s + identity + "\x06\0\0"s +
                              "ACME\0Box\0SERIAL\0\0"s + "\x0B\x05\0\0\x01"s + "SERIAL tag\0\0"s +
                              "\xDD\x08\0\0mine\0\0"s + "\x7F\x04\0\0\0\0SERIAL"s;
    const std::string masked = masked_firmware_table(table);
    for (const char* text : {"SERIAL", "identity", "mine"})
        EXPECT_EQ(masked.find(text), std::string::npos) << text;
    const ByteView bytes = bytes_of(masked);
    const auto structures = smbios_structures(bytes);
    ASSERT_EQ(structures.size(), 3U);
    EXPECT_EQ(structures[0].string(0x04), "ACME");
    EXPECT_EQ(structures[0].string(0x05), "Box");
    EXPECT_EQ(structures[0].string(0x07), "******");
    EXPECT_EQ(masked_firmware_table("\x01\xFF\0"), "");
}

TEST(Masked, BlotsOutSerialNumbersOfMonitors)
{
    const std::string edid =
        read_whole_file(OSTRELUM_TESTS_DIR "/machines/desktop/sys/devices/pci0000:00/0000:00:03.1/"
                                           "0000:0b:00.0/drm/card1/card1-HDMI-A-1/edid",
                        4096)
            .value();
    ASSERT_NE(edid.find("1AB2C3D4"), std::string::npos);
    const std::string other_standard = summed(std::string(128, 'S'));
    // Some piece with a serial number before one mode by formula, at 200 Hz.
    const std::string more = display_id("\x29\0\4SSSS"s + "\x24\0\6\0\xFF\x09\x9F\x05\xC7"s);
    const std::string masked = masked_edid(edid + other_standard + more);
    EXPECT_EQ(masked.find("1AB2C3D4"), std::string::npos);
    EXPECT_EQ(masked.find("SSSS"), std::string::npos);
    EXPECT_EQ(masked.substr(12, 4), "\0\0\0\0"s);
    const std::size_t blocks = edid.size() / 128;
    EXPECT_EQ(read_edid(monitor("", 1) + masked.substr((blocks + 1) * 128))->rates_of_modes,
              (RefreshRange{200, 200}));
    const auto before = read_edid(edid), after = read_edid(masked);
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->name, before->name);
    EXPECT_EQ(after->limits, before->limits);
    EXPECT_EQ(after->rates_of_modes, before->rates_of_modes);
    EXPECT_EQ(after->detailed, before->detailed);
    EXPECT_EQ(masked_edid(edid.substr(0, 100)), "");
}

} // namespace
} // namespace ostrelum::linux_platform
