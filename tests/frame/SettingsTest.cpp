#include "tests/Stage.h"

namespace ostrelum {
namespace {

class Settings : public Stage {
protected:
    static std::int32_t held(std::string_view name)
    {
        if (name == "ColorValue")
            return ColorValue;
        if (name == "ShineValue")
            return Shine;
        return name == "ChkTrans" ? static_cast<std::int32_t>(TransEnabled) : Transparency;
    }
};

TEST_F(Settings, AreTakenInTheirRangeAndElseReplacedByTheDefault)
{
    const struct {
        std::string_view name;
        RegValue before;
        /// What the store holds afterwards, and what the program holds in memory.
        const char* kept;
        std::int32_t held;
    } cases[] = {
        {"ColorValue", 254U, "16750080", 16750080},
        {"ColorValue", 255U, "255", 255},
        {"ColorValue", 16776960U, "16776960", 16776960},
        {"ColorValue", 16776961U, "16750080", 16750080},
        {"ColorValue", 4294967295U, "16750080", 16750080},
        {"ColorValue", "blue", "16750080", 16750080},
        {"ColorValue", "65535", "65535", 65535},
        {"ShineValue", 49U, "48", 24},
        {"ShineValue", 48U, "48", 24},
        {"ShineValue", 0U, "0", 0},
        {"ShineValue", 7U, "7", 4},
        {"ShineValue", 5U, "5", 2},
        {"ShineValue", "", "48", 24},
        {"ShineValue", "-1", "48", 24},
        {"ChkTrans", 0U, "0", 0},
        {"ChkTrans", 2U, "1", 1},
        {"ChkTrans", "0.5", "1", 1},
        {"ChkTrans", "yes", "1", 1},
        {"Transparency", 80U, "80", 80},
        {"Transparency", 81U, "0", 0},
        {"Transparency", " 12 ", " 12 ", 12},
        {"Transparency", "1e", "0", 0},
    };
    for (const auto& c : cases) {
        store.values = {{full_name(c.name), c.before}};
        start_program();
        EXPECT_EQ(stored(c.name), c.kept) << c.name;
        EXPECT_EQ(held(c.name), c.held) << c.name << " " << c.kept;
    }
}

TEST_F(Settings, AnyOtherLanguageIsReplacedInTheStoreToo)
{
    for (const char* text : {"Klingon", "english", "", "English Dutch"}) {
        store_text("Language", text);
        start_program();
        EXPECT_EQ(Idioma, "English") << text;
        EXPECT_EQ(stored("Language"), "English") << text;
    }
}

TEST_F(Settings, AStoreThatRefusesWritesLeavesTheDefaultsInMemory)
{
    store.read_only = true;
    store_number("Transparency", 99);
    start_program();
    EXPECT_TRUE(store.writes.empty());
    EXPECT_EQ(stored("Transparency"), "99");
    EXPECT_EQ(Transparency, 0);
    EXPECT_TRUE(TransEnabled);
}

} // namespace
} // namespace ostrelum
