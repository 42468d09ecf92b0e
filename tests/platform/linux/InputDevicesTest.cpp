#include "tests/platform/linux/MadeMachine.h"

#include <gmock/gmock.h>

namespace ostrelum {
namespace {

using testing::ElementsAre;

const std::string Keyboards = "Select * from Win32_Keyboard";
const std::string Pointers = "Select * from Win32_PointingDevice";
/// What a whole keyboard and a mouse of three buttons can do.
const std::string Keys = "fffffffffffffffe";
const std::string Buttons = "70000 0 0 0 0";

void input(const MadeMachine& machine, const std::string& parent, int number,
           const std::string& bus, const std::string& key, const std::string& rel = "0",
           const std::string& abs = "0")
{
    machine.device(parent, "input/input" + std::to_string(number),
                   {{"name", "Device " + std::to_string(number)},
                    {"id/bustype", bus},
                    {"capabilities/key", key},
                    {"capabilities/rel", rel},
                    {"capabilities/abs", abs}});
}

TEST(InputDevices, AreToldApartByCapabilityWhereUdevDoesNotRun)
{
    const MadeMachine machine;
    input(machine, "platform/i8042/serio0", 0, "0011", Keys);
    input(machine, "LNXSYSTM:00/PWRBN", 1, "0019", "10000000000000 0");
    input(machine, "pci0000:00/usb1/1-1/1-1:1.0", 2, "0003", Buttons, "3");
    input(machine, "pci0000:00/i2c-1/pad", 3, "0018", "e520 10000 0 0 0 0", "0", "3");
    input(machine, "pci0000:00/i2c-1/touchscreen", 4, "0018", "400 0 0 0 0 0", "0", "3");
    EXPECT_THAT(machine.rows(Keyboards), ElementsAre("PS/2 keyboard|Device 0"));
    EXPECT_THAT(machine.rows(Pointers), ElementsAre("162|2|null|Device 2", "1|2|null|Device 3"));
}

TEST(InputDevices, PartsOfOneDeviceComeOnceAndMadeOnesNever)
{
    const MadeMachine machine;
    input(machine, "virtual", 0, "0003", Keys);
    input(machine, "pci/usb1/1-4/1-4:1.0/0003:046D:C31C.0001", 9, "0003", Keys);
    input(machine, "pci/usb1/1-4/1-4:1.1/0003:046D:C31C.0002", 10, "0003", Keys);
    input(machine, "pci/usb1/1-4/1-4.2/1-4.2:1.0/0003:046D:C31C.0003", 11, "0003", Keys);
    input(machine, "virtual/misc/uhid/0005:046D:B342.0004", 12, "0005", Keys);
    input(machine, "platform/keys", 13, "0019", Keys);
    EXPECT_THAT(machine.rows(Keyboards),
                ElementsAre("USB keyboard|Device 9", "USB keyboard|Device 11",
                            "Bluetooth keyboard|Device 12", "Keyboard|Device 13"));
}

TEST(InputDevices, MakersOfPointers)
{
    const struct {
        const char *bus, *name, *row;
    } cases[] = {
        {"0011", "SynPS/2 Synaptics TouchPad", "4|Synaptics"},
        {"0011", "ImExPS/2 Generic Explorer Mouse", "4|null"},
        {"0011", "PS/2 Mouse", "4|null"},
        {"0003", "Some Mouse", "162|Maker Ltd."},
        {"0013", "Some Mouse", "3|null"},
        {"0006", "Some Mouse", "1|null"},
        {"zz", "Some Mouse", "2|null"},
    };
    for (const auto& each : cases) {
        const MadeMachine machine;
        input(machine, "pci/usb1/1-4/1-4:1.0", 0, each.bus, Buttons, "3");
        machine.file("sys/class/input/input0/name", each.name);
        machine.file("sys/devices/pci/usb1/1-4/manufacturer", "Maker Ltd.\n");
        EXPECT_THAT(machine.rows("Select DeviceInterface, Manufacturer from Win32_PointingDevice"),
                    ElementsAre(each.row))
            << each.bus << " " << each.name;
    }
}

TEST(InputDevices, HandednessIsTheSessions)
{
    const MadeMachine machine;
    input(machine, "platform/i8042/serio1", 0, "0011", Buttons, "3");
    const auto handedness = [&](std::optional<bool> left_handed) {
        return machine.rows("Select Handedness from Win32_PointingDevice", [=] {
            return SessionFacts{{}, left_handed};
        });
    };
    EXPECT_THAT(handedness(true), ElementsAre("3"));
    EXPECT_THAT(handedness(false), ElementsAre("2"));
    EXPECT_THAT(handedness(std::nullopt), ElementsAre("2"));
}

} // namespace
} // namespace ostrelum
