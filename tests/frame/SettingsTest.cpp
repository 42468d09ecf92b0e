#include "tests/Stage.h"

namespace ostrelum {
namespace {

struct NumberCase {
    std::string_view name;
    RegValue stored;
    /// What the store holds afterwards, and what the program holds in memory.
    std::string kept;
    std::int32_t held;
};

class NumberSettings : public Stage, public ::testing::WithParamInterface<NumberCase> {
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

TEST_P(NumberSettings, AreTakenInTheirRangeAndElseReplacedByTheDefault)
{
    const NumberCase& c = GetParam();
    store.values[full_name(c.name)] = c.stored;
    start_program();
    EXPECT_EQ(stored(c.name), c.kept);
    EXPECT_EQ(held(c.name), c.held);
}

const NumberCase number_cases[] = {
    {"ColorValue", 254U, "16750080", 16750080},
    {"ColorValue", 255U, "255", 255},
    {"ColorValue", 16776960U, "16776960", 16776960},
    {"ColorValue", 16776961U, "16750080", 16750080},
    {"ColorValue", 4294967295U, "16750080", 16750080},
    {"ColorValue", std::string("blue"), "16750080", 16750080},
    {"ColorValue", std::string("65535"), "65535", 65535},
    {"ShineValue", 49U, "48", 24},
    {"ShineValue", 48U, "48", 24},
    {"ShineValue", 0U, "0", 0},
    {"ShineValue", 7U, "7", 4},
    {"ShineValue", 5U, "5", 2},
    {"ShineValue", std::string(), "48", 24},
    {"ShineValue", std::string("-1"), "48", 24},
    {"ChkTrans", 0U, "0", 0},
    {"ChkTrans", 1U, "1", 1},
    {"ChkTrans", 2U, "1", 1},
    {"ChkTrans", std::string("0.5"), "1", 1},
    {"ChkTrans", std::string("yes"), "1", 1},
    {"Transparency", 80U, "80", 80},
    {"Transparency", 81U, "0", 0},
    {"Transparency", std::string(" 12 "), " 12 ", 12},
    {"Transparency", std::string("1e"), "0", 0},
};
INSTANTIATE_TEST_SUITE_P(Ranges, NumberSettings, ::testing::ValuesIn(number_cases));

class LanguageSetting : public Stage {};

TEST_F(LanguageSetting, AnyOtherLanguageIsReplacedInTheStoreToo)
{
    for (const char* text : {"Klingon", "english", "", "English Dutch"}) {
        store_text("Language", text);
        start_program();
        EXPECT_EQ(Idioma, "English") << text;
        EXPECT_EQ(stored("Language"), "English") << text;
    }
}

TEST_F(LanguageSetting, AStoreThatRefusesWritesLeavesTheDefaultsInMemory)
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
