#include "sources/ManagementService.h"

#include <gtest/gtest.h>

namespace ostrelum {
namespace {

TEST(Values, ConvertAsTheServicesOwnDo)
{
    EXPECT_EQ(Value(17179869184).text(), "17179869184");
    EXPECT_EQ(Value(0.5).text(), "0.5");
    EXPECT_EQ(Value(true).text(), "True");
    EXPECT_EQ(Value(" 42 ").number(), 42);
    EXPECT_EQ(Value(true).number(), -1);
    EXPECT_TRUE(Value("FALSE").as_bool() == false && Value(2).as_bool());
}

TEST(Values, RoundToWholeNumbersWithTiesToEvenWithin32Bits)
{
    const std::pair<Value, std::int64_t> cases[] = {{0.5, 0},
                                                    {1.5, 2},
                                                    {2.5, 2},
                                                    {-1.5, -2},
                                                    {"7", 7},
                                                    {"3.5", 4},
                                                    {2147483647.4, 2147483647},
                                                    {-2147483648.5, -2147483648}};
    for (const auto& [value, whole] : cases)
        EXPECT_EQ(value.as_int32(), whole) << value.text();
    for (const Value& wide : {Value(2147483647.5), Value("2147483648"), Value(1e300)})
        EXPECT_THROW(wide.as_int32(), Failure) << wide.text();
}

TEST(Values, ThatCannotBeConvertedFail)
{
    EXPECT_THROW(Value().text(), Failure);
    EXPECT_THROW(Value().number(), Failure);
    for (const char* text : {"", " ", "12 MB", "1,5", "0x10", "nan", "inf", "--1", "1e999"})
        EXPECT_THROW(Value(text).number(), Failure) << text;
    EXPECT_THROW(Value("perhaps").as_bool(), Failure);
}

} // namespace
} // namespace ostrelum
