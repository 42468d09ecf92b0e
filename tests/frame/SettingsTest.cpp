#include "tests/Split.h"
#include "tests/Stage.h"

namespace ostrelum {
namespace {

using Settings = Stage;

TEST_F(Settings, AreTakenInTheirRangeAndElseReplacedByTheDefault)
{
    const struct {
        std::string_view name;
        std::int32_t (*held)();
        /// What is stored, and behind the sign what the store holds afterwards, and the program.
        const char* values;
    } cases[] = {
        {"ColorValue", [] { return ColorValue; },
         "254=16750080 16750080|255=255 255|16776960=16776960 16776960|16776961=16750080 16750080|"
         "4294967295=16750080 16750080|blue=16750080 16750080|254.6=254.6 255|254.4=16750080 "
         "16750080|"
         "16776960.4=16776960.4 16776960|1e300=16750080 16750080"},
        {"ShineValue", [] { return Shine; }, "49=48 24|48=48 24|0=0 0|7=7 4|5=5 2|=48 24|-1=48 24"},
        {"ChkTrans", [] { return std::int32_t{TransEnabled}; }, "0=0 0|2=1 1|0.5=1 1|yes=1 1"},
        {"Transparency", [] { return Transparency; }, "80=80 80|81=0 0| 12 = 12  12|1e=0 0"}};
    for (const auto& c : cases) {
        for (const auto& [before, after] : pairs(c.values)) {
            store.values = {{full_name(c.name), before}};
            start_program();
            EXPECT_EQ(stored(c.name) + " " + std::to_string(c.held()), after) << c.name;
        }
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

} // namespace
} // namespace ostrelum
