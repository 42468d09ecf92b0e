#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string Query = "Select Name, Manufacturer from Win32_SoundDevice";

TEST(SoundDevice, EachCodecIsOneAndModemCodecsAreNone)
{
    const MadeMachine machine;
    machine.device("pci/0000:00:1f.3", "sound/card0", {{"id", "PCH"}});
    machine.device("pci/0000:00:1f.3/card0", "sound/hwC0D0",
                   {{"vendor_name", "Realtek"}, {"chip_name", "ALC3204"}, {"afg", "0x1"}});
    machine.device("pci/0000:00:1f.3/card0", "sound/hwC0D1",
                   {{"vendor_name", "Conexant"}, {"chip_name", "Modem"}, {"afg", "0x0"}});
    machine.device("pci/0000:00:1f.3/card0", "sound/hwC0D2",
                   {{"vendor_name", "Intel"}, {"chip_name", ""}});
    EXPECT_THAT(machine.rows(Query), ElementsAre("Realtek|Realtek ALC3204", "Intel|Intel"));
}

TEST(SoundDevice, CardsOfOtherKindsAreOneEach)
{
    const MadeMachine machine;
    machine.file("proc/asound/cards",
                 " 1 [Headset        ]: USB-Audio - Brand Headset - wireless\n"
                 "                      Brand Headset at usb-0000:00:14.0-5, full speed\n"
                 "10 [Later          ]: simple-card - Later\n");
    machine.device("pci/usb1/1-5/1-5:1.0", "sound/card1", {{"hwC1D0/dev", "116:9"}});
    machine.link("sys/devices/pci/usb1/1-5/1-5:1.0/sound/card1/device", "../../../1-5:1.0");
    machine.file("sys/devices/pci/usb1/1-5/manufacturer", "Brand\n");
    machine.device("platform/sound", "sound/card10", {});
    machine.device("platform/sound2", "sound/card11", {{"id", "Nameless"}});
    EXPECT_THAT(machine.rows(Query),
                ElementsAre("Brand|Brand Headset - wireless", "null|Later", "null|Nameless"));

    machine.file("run/udev/data/+sound:card1", "E:ID_VENDOR_ENC=Maker\\x20Ltd.\n");
    EXPECT_THAT(machine.rows(Query + " where Name = 'Later' or Manufacturer = 'Maker Ltd.'"),
                ElementsAre("Maker Ltd.|Brand Headset - wireless", "null|Later"));
}

TEST(SoundDevice, LeavesOutModemsAndMadeCards)
{
    const MadeMachine machine;
    machine.device("virtual", "sound/card0", {{"id", "Loopback"}});
    machine.device("pci/0000:00:1e.3", "sound/card1", {{"pcmC1D0p/pcm_class", "modem"}});
    EXPECT_THAT(machine.rows(Query), IsEmpty());
    machine.file("sys/class/sound/card1/pcmC1D1p/pcm_class", "generic\n");
    EXPECT_THAT(machine.rows(Query), ElementsAre("null|null"));
}

} // namespace
} // namespace ostrelum
