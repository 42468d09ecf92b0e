#include "tests/platform/linux/MadeSysroot.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

/// What udev takes a part for, or what the kernel says that it can do.
struct Part {
    std::string name, parent, kind;
    std::string key = "", rel = "", abs = "";
};

void add(const MadeSysroot& machine, const Part& part, std::size_t number)
{
    const std::string input = "input" + std::to_string(number);
    machine.device(part.parent, "input/" + input,
                   {{"name", part.name},
                    {"capabilities/key", part.key},
                    {"capabilities/rel", part.rel},
                    {"capabilities/abs", part.abs}});
    if (!part.kind.empty())
        machine.file("run/udev/data/+input:" + input,
                     "E:ID_INPUT=1\nE:ID_INPUT_" + part.kind + "=1\n");
}

TEST(InputDevices, AreNamedByTheHardwareThatIsMadeForIt)
{
    const std::string first = "usb1/1-1/1-1:1.", second = "usb1/1-2/1-2:1.", pad = "i2c-1/pad/0018";
    const std::string radio = "usb1/1-7/1-7:1.0/bluetooth/hci0/hci0:",
                      fingers = "e520 10000 0 0 0 0";
    using Names = std::vector<std::string>;
    struct Case {
        std::vector<Part> parts;
        Names keyboards, pointers;
    };
    for (const Case& each : {
             Case{{{"Keyboard", first + "0", "KEYBOARD"},
                   {"Its wheel", first + "1", "MOUSE"},
                   {"Its media keys", first + "2", "KEYBOARD"},
                   {"Mouse", second + "0", "MOUSE"}},
                  {"Keyboard"},
                  {"Mouse", "Its wheel"}},
             Case{{{"Mouse", first + "0", "MOUSE"},
                   {"Its macros", first + "1", "KEYBOARD"},
                   {"Keyboard", second + "0", "KEYBOARD"},
                   {"Its wheel", second + "1", "MOUSE"}},
                  {"Keyboard", "Its macros"},
                  {"Mouse", "Its wheel"}},
             Case{{{"Pad's mouse", pad, "MOUSE"}, {"Pad", pad, "TOUCHPAD"}}, {}, {"Pad"}},
             Case{{{"Pad's mouse", pad, "", "30000 0 0 0 0", "3"},
                   {"Pad", pad, "", fingers, "", "3"}},
                  {},
                  {"Pad"}},
             Case{{{"Mouse", radio + "256/0005:046D:B016.0001", "MOUSE"},
                   {"Other", radio + "512/0005:046D:B342.0002", "MOUSE"},
                   {"Other's keys", radio + "512/0005:046D:B342.0002", "KEYBOARD"}},
                  {"Other's keys"},
                  {"Mouse", "Other"}},
         }) {
        const MadeSysroot machine;
        for (std::size_t i = 0; i < each.parts.size(); ++i)
            add(machine, each.parts[i], i);
        const std::string& what = each.parts.back().name;
        EXPECT_EQ(machine.rows("Select Name from Win32_Keyboard"), each.keyboards) << what;
        EXPECT_EQ(machine.rows("Select Name from Win32_PointingDevice"), each.pointers) << what;
    }
}

} // namespace
} // namespace ostrelum::linux_platform
