#include "platform/linux/files/WholeFile.h"
#include "platform/linux/formats/Edid.h"
#include "platform/linux/formats/Smbios.h"
#include "platform/linux/recording/MaskedBytes.h"
#include "platform/linux/recording/MaskedConfig.h"
#include "platform/linux/recording/MaskedRecording.h"
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
         "28 1 0:41 /(hidden\\0407) / rw - btrfs /dev/mapper/(hidden\\0404) rw\n"
         "29 28 0:50 / /media/(hidden\\0405)/(hidden\\0406) rw - cifs "
         "//(hidden\\0408)/(hidden\\0405) rw\n"},
        {masked_mounts, "a\\134\\011b /sys a\\134\\011b rw 0 0\n",
         "a\\134\\011b /sys a\\134\\011b rw 0 0\n"},
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
        {masked_groups, "larch:x:9:alma\nsudo:$6$hash:27:owl, alma\nwheel\nadmin:x:owl:\n",
         "sudo:x:27:(hidden)\nwheel:x::\nadmin:x::\n"},
        {masked_boot_menu, "GRUB_TIMEOUT=alma\n", "GRUB_TIMEOUT=-1\n"},
        {masked_boot_menu, "GRUB_TIMEOUT=5\nGRUB_TIMEOUT='\x01'\n", "GRUB_TIMEOUT=-1\n"},
        {masked_boot_menu, "GRUB_TIMEOUT_STYLE=5\n", ""},
        {masked_locale, "# alma\nLANG=sr_RS.alma@latin\n", "LANG=sr_RS@latin\n"},
        {masked_locale, "LANG=C.UTF-8\n", "LANG=C\n"},
        {masked_locale, "LANG=alma\n", "LANG=(hidden)\n"},
        {masked_definitions, "UID_MAX alma\nUID_MAX 9\n\tUID_MIN 500 # alma\nUMASK 022\n",
         "UID_MIN 500\n"},
        {masked_release, "NAME=\"A \\\"B\"\nHOME_URL=alma\n# alma\n", "NAME=\"A \\\"B\"\n"},
        {masked_driver, "NVRM version: 535  Release Build  (alma@larch)  Mon\n",
         "NVRM version: 535  Release Build  (hidden)  Mon\n"},
        {masked_names, "# alma\nusb:v046D ID_VENDOR_FROM_DATABASE=Logitech\nalma ALMA=x\n",
         "usb:v046D ID_VENDOR_FROM_DATABASE=Logitech\n"},
        {masked_machine_id, "3b7c61f04d7a4c0e9f5521d88e90ab17\n", "(hidden)\n"},
        {masked_machine_id, "(hidden)\n", "(hidden)\n"},
        {hidden_line, "4KQ7ZX1\n", "(hidden)\n"},
        {hidden_line, "2222\n", "(hidden)\n"},
        {hidden_serial, "2222\n", "2222\n"},
        {masked_process, "12 (alma) 's (job) S 1 12\n", "0 ((hidden)) S 1 12\n"},
        {masked_kernel, "Linux version 6.1 (alma@larch) #1 SMP\n", "(hidden) #1 SMP\n"},
        {masked_kernel, "Linux version 6.1 (alma@larch)\n", ""},
        {masked_udev,
         "S:disk/by-id/S3Z1\nE:ID_WWN=0x5002\nE:ID_MODEL=SSD\nE:ID_FS_UUID=1C5A-7E90\n"
         "E:MEMORY_DEVICE_0_ASSET_TAG=A1\nE:ID_PART_ENTRY_UUID=77\n",
         "E:ID_MODEL=SSD\nE:ID_FS_UUID=(hidden)\n"},
        {masked_udev, "E:ID_FS_UUID=2024-08-27-15-44-48-00\nE:ID_FS_LABEL_ENC=\n",
         "E:ID_FS_UUID=-\n"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.masked(each.before, given), each.after);
}

/// A maker's word is what it says; in a text of a person's it may be a name.
TEST(Masked, FindsWhatIsKnownInOtherTexts)
{
    KnownIdentities known;
    known.add_person("Alma von Kestrel");
    for (const char* each : {"@S3Z1NB", "1234567", "12345678", "USB", "al", "sda1", "home", "Café"})
        known.add(each);
    const struct {
        Writer writer;
        std::string_view before, after;
    } cases[] = {
        {Writer::Person, "ALMA's and Almas, alma_von-kestrel",
         "(hidden)'s and Almas, (hidden 2)_(hidden 3)-(hidden 4)"},
        {Writer::Person, "Alma von Kestrel", "(hidden 5)"},
        {Writer::Maker, "alma S3Z1NB s3z1nb XS3Z1NB", "alma (hidden 6) (hidden 7) XS3Z1NB"},
        {Writer::Maker, "12345678 \n", "12345678 \n"},
        {Writer::Maker, "V12345678 12345678 1234567", "V12345678 (hidden 8) 1234567"},
        {Writer::Person, "al USB sda1 home café 1234567",
         "al USB sda1 home (hidden 9) (hidden 10)"},
        {Writer::Maker, "c4:d3:8C:00:11:22 c4:d3:8c:00:11:2 0c4:d3:8c:00:11:22",
         "(hidden 11) c4:d3:8c:00:11:2 0c4:d3:8c:00:11:22"},
        {Writer::Maker, "{4a67b082-0a4c-41cf-b6c7-440b29bb8c4f}", "{(hidden 12)}"},
    };
    Pseudonyms given;
    for (const auto& each : cases)
        EXPECT_EQ(known.hidden_in(each.before, each.writer, given), each.after);
}

/// Links lead where they led.
TEST(Masked, GivesPseudonymsToPlaces)
{
    const Place folder{PlaceKind::Folder, "", ""};
    Recording recording;
    recording.places = {
        {"/dev/vault", folder},
        {"/dev/vault/den", {PlaceKind::Link, "/dev/mapper/vault-den", ""}},
        {"/dev/mapper/vault-den", {PlaceKind::Link, "../dm-0", ""}},
        {"/dev/mydisk", {PlaceKind::Link, "sda1", ""}},
        {"/etc/passwd", {PlaceKind::Link, "../home/./alma//p", ""}},
        {"/sys/class/power_supply/hid-S3-battery",
         {PlaceKind::Link, "../../devices/hid-S3-battery", ""}},
        {"/sys/class/power_supply/hid-0005:046D:B019.0003-battery", folder},
    };
    std::map<std::string, std::string> after;
    for (const auto& [path, place] : masked_recording(recording, {}).places)
        after.emplace(path, place.content);
    const std::map<std::string, std::string> expected = {
        {"/dev/(hidden 3)", ""},
        {"/dev/(hidden 3)/(hidden 4)", "/dev/mapper/(hidden)"},
        {"/dev/mapper/(hidden)", "../dm-0"},
        {"/dev/(hidden 2)", "sda1"},
        {"/etc/passwd", "../home/./(hidden 5)//(hidden 6)"},
        {"/sys/class/power_supply/hid-(hidden 7)-battery", "../../devices/hid-(hidden 7)-battery"},
        {"/sys/class/power_supply/hid-0005:046D:B019.0003-battery", ""},
    };
    EXPECT_EQ(after, expected);
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
