#include "platform/qt/MouseHandedness.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <array>
#include <gtest/gtest.h>
#include <xcb/xinput.h>

namespace ostrelum::qt_platform {
namespace {

using Hand = std::optional<bool>;

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/// An X server of the test's own, whose pointers it sets up.
class Server {
public:
    Server()
    {
        process_.start("Xvfb", {"-displayfd", "1", "-noreset", "-nolisten", "tcp"});
        while (!name_.endsWith('\n') && process_.waitForReadyRead(30'000))
            name_ += process_.readAllStandardOutput();
        name_ = ":" + name_.trimmed();
        connection_ = xcb_connect(name(), nullptr);
    }
    ~Server()
    {
        xcb_disconnect(connection_);
        process_.kill();
        process_.waitForFinished();
    }
    const char* name() const { return name_.constData(); }
    void map_buttons(std::vector<std::uint8_t> buttons)
    {
        const auto count = static_cast<std::uint8_t>(buttons.size());
        std::free(xcb_set_pointer_mapping_reply(
            connection_, xcb_set_pointer_mapping(connection_, count, buttons.data()), nullptr));
    }
    /// As the driver does for each of its devices.
    void set_property(xcb_input_device_id_t device, std::uint8_t value)
    {
        // The library sends whole words.
        const std::array<std::uint8_t, 4> word{value};
        constexpr char name[] = "libinput Left Handed Enabled";
        auto* atom = xcb_intern_atom_reply(
            connection_, xcb_intern_atom(connection_, 0, sizeof name - 1, name), nullptr);
        std::free(xcb_input_xi_query_version_reply(
            connection_, xcb_input_xi_query_version(connection_, 2, 0), nullptr));
        const auto done =
            xcb_input_xi_change_property_checked(connection_, device, XCB_PROP_MODE_REPLACE, 8,
                                                 atom->atom, XCB_ATOM_INTEGER, 1, word.data());
        EXPECT_EQ(xcb_request_check(connection_, done), nullptr);
        std::free(atom);
    }

private:
    QProcess process_;
    QByteArray name_;
    xcb_connection_t* connection_ = nullptr;
};

TEST(MouseHandedness, OfAnXServerIsThatOfTheDriverOrOfTheButtons)
{
    constexpr xcb_input_device_id_t mouse = 6, keyboard = 7;
    Server server;
    EXPECT_EQ(left_handed_on_x11(server.name()), Hand(false));
    server.map_buttons({3, 2, 1, 4, 5, 6, 7, 8, 9, 10});
    EXPECT_EQ(left_handed_on_x11(server.name()), Hand(true));
    server.map_buttons({1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    server.set_property(keyboard, 1);
    EXPECT_EQ(left_handed_on_x11(server.name()), Hand(false));
    server.set_property(mouse, 1);
    EXPECT_EQ(left_handed_on_x11(server.name()), Hand(true));
    server.set_property(mouse, 0);
    EXPECT_EQ(left_handed_on_x11(server.name()), Hand(false));
    EXPECT_EQ(left_handed_on_x11(":987"), Hand()) << "no server";
}

TEST(MouseHandedness, OfAWaylandSessionIsThatOfTheDesktopsSettings)
{
    const QTemporaryDir folder;
    write(folder.filePath("mouse.gschema.xml"),
          R"(<schemalist><schema id="org.gnome.desktop.peripherals.mouse" path="/mouse/">
             <key name="left-handed" type="b"><default>true</default></key></schema>
             <schema id="org.mate.peripherals-mouse" path="/mate/"/></schemalist>)");
    ASSERT_EQ(QProcess::execute("glib-compile-schemas", {folder.path()}), 0);
    qputenv("GSETTINGS_SCHEMA_DIR", folder.path().toUtf8());
    qputenv("GSETTINGS_BACKEND", "memory");
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    const struct {
        const char *desktop, *kde;
        Hand hand;
    } cases[] = {{"ubuntu:GNOME", "", true},
                 {"MATE", "", {}}, // its schema has no such key
                 {"X-Cinnamon", "", {}},
                 {"sway", "[Libinput][1][2][Mouse]\nLeftHanded=true\n", {}},
                 {"KDE",
                  "[Libinput][1][2][Pad]\nTapToClick=true\n\n"
                  "[Libinput][1][3][Mouse]\nLeftHanded=true\n",
                  true},
                 {"KDE", "[Libinput][1][3][Mouse]\nLeftHanded=false\n", false},
                 {"KDE", "[Libinput][1][3][Mouse]\n[Mouse]\nLeftHanded=true\n", false}};
    for (const auto& c : cases) {
        qputenv("XDG_CURRENT_DESKTOP", c.desktop);
        write(folder.filePath("kcminputrc"), c.kde);
        EXPECT_EQ(left_handed(), c.hand) << c.desktop << c.kde;
    }
    QFile::remove(folder.filePath("kcminputrc"));
    EXPECT_EQ(left_handed(), Hand(false)) << "KDE writes what differs from its defaults";
    qunsetenv("WAYLAND_DISPLAY");
}

} // namespace
} // namespace ostrelum::qt_platform
