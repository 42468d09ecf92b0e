#include "platform/linux/services/Shell.h"

#include "platform/linux/services/UserFolders.h"
#include "tests/platform/linux/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace ostrelum::linux_platform {
namespace {

namespace fs = std::filesystem;

const std::string root = "HKEY_CURRENT_USER\\Software\\Ostrelum\\";

TEST(LinuxShell, StoresByTypeInTheConfigurationFolder)
{
    const TemporaryFolder folder;
    const std::pair<Environment, std::string> cases[] = {
        {{{"HOME", folder / "a"}}, "a/.config"},
        {{{"HOME", folder / "b"}, {"XDG_CONFIG_HOME", "relative"}}, "b/.config"},
        {{{"HOME", folder / "c"}, {"XDG_CONFIG_HOME", folder / "d"}}, "d"},
    };
    for (const auto& [environment, config] : cases) {
        LinuxShell shell(environment);
        shell.RegWrite(root + "Text", 7U, "REG_SZ");
        shell.RegWrite(root + "Number", "8", "REG_DWORD");
        const fs::path settings = folder / (config + "/dervalin-ostrelum/settings");
        EXPECT_EQ(fs::status(settings).permissions(), fs::perms(0600)) << config;
        EXPECT_EQ(fs::status(settings.parent_path()).permissions(), fs::perms(0700));
        EXPECT_EQ(LinuxShell(environment).RegRead(root + "Text"), RegValue("7"));
        EXPECT_EQ(shell.RegRead(root + "Number"), RegValue(8U));
        EXPECT_THROW(shell.RegWrite(root + "Number", "-8", "REG_DWORD"), Failure);
        EXPECT_THROW(shell.RegWrite(root + "Number", 8U, "REG_BINARY"), Failure);
        EXPECT_THROW(shell.RegRead(root + "Missing"), Failure);
    }
}

TEST(LinuxShell, NamesTheDesktopThatExists)
{
    const TemporaryFolder home;
    const auto desktop = [&] {
        return LinuxShell({{"HOME", home / "."}}).SpecialFolders("desktop");
    };
    EXPECT_EQ(desktop(), home / ".");
    fs::create_directory(home / "Desktop");
    EXPECT_EQ(desktop(), home / "./Desktop");
    home.file(".config/user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/Escritorio\"\n");
    EXPECT_EQ(desktop(), home / "./Desktop");
    fs::create_directory(home / "Escritorio");
    EXPECT_EQ(desktop(), home / "./Escritorio");
    EXPECT_THROW(LinuxShell({{"HOME", home / "gone"}}).SpecialFolders("Desktop"), Failure);
    EXPECT_THROW(LinuxShell({{"HOME", home / "."}}).SpecialFolders("Startup"), Failure);
}

TEST(UserFolders, ReadsUserDirs)
{
    using Named = std::optional<std::string>;
    const std::pair<std::string_view, Named> cases[] = {
        {"# XDG_DESKTOP_DIR=\"/no\"\nXDG_DESKTOP_DIR=\"$HOME/Mesa de \\\"luz\\\"\"",
         "/h/Mesa de \"luz\""},
        {" XDG_DESKTOP_DIR=\"/srv/d\"\r\nXDG_MUSIC_DIR=\"$HOME/m\"\n", "/srv/d"},
        {"XDG_DESKTOP_DIR=\"/a\"\nXDG_DESKTOP_DIR=\"$HOME\"\n", "/h"},
        {"XDG_DESKTOP_DIR=\"$HOMELESS/d\"", std::nullopt},
        {"XDG_DESKTOP_DIR=\"relative\"", std::nullopt},
        {"XDG_DESKTOP_DIR=/bare\nXDG_DESKTOP_DIR=\"\\", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& [text, named] : cases)
        EXPECT_EQ(desktop_named(text, "/h"), named) << text;
}

TEST(UserFolders, FindsTheFontsWhereverTheyLie)
{
    const TemporaryFolder places;
    places.file("shared/a/other.ttf");
    fs::create_directory_symlink(".", places / "shared/circle");
    EXPECT_EQ(segoe_folder({places / "none", places / "shared"}), std::nullopt);
    places.file("disk/Windows/Fonts/SEGOEUI.TTF");
    fs::create_directory_symlink(places / "disk/Windows/Fonts", places / "shared/a/windows");
    EXPECT_EQ(segoe_folder({places / "none", places / "shared"}), places / "shared/a/windows");
    places.file(".local/share/fonts/segoeui.ttf");
    const Environment environment = {{"HOME", places / "."}};
    EXPECT_EQ(LinuxShell(environment).SpecialFolders("Fonts"), places / "./.local/share/fonts");
    EXPECT_EQ(file_in_folder(places / "disk/Windows/Fonts", "segoeui.ttf"),
              places / "disk/Windows/Fonts/SEGOEUI.TTF");
}

} // namespace
} // namespace ostrelum::linux_platform
