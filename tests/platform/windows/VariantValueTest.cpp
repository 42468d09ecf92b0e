#include "platform/windows/services/VariantValue.h"

#include "tests/platform/windows/FakeWmi.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ostrelum::windows_platform {
namespace {

void short_variant(VARIANT& variant)
{
    variant.vt = VT_I2;
    variant.iVal = -1;
}

void true_variant(VARIANT& variant)
{
    variant.vt = VT_BOOL;
    variant.boolVal = VARIANT_TRUE;
}

void real_variant(VARIANT& variant)
{
    variant.vt = VT_R8;
    variant.dblVal = 2.5;
}

void half_pair_variant(VARIANT& variant)
{
    variant.vt = VT_BSTR;
    variant.bstrVal = SysAllocString(L"a\xD800z");
}

TEST(VariantValue, MeansWhatThePropertysTypeSays)
{
    const struct {
        CIMTYPE type;
        std::function<void(VARIANT&)> fill;
        Value expected;
    } cases[] = {
        // A graphics card of 4095 MiB.
        {CIM_UINT32, number_variant(-1048576), 4293918720LL},
        {CIM_SINT32, number_variant(-1048576), -1048576},
        {CIM_UINT16, number_variant(65535), 65535},
        {CIM_UINT16, short_variant, 65535},
        {CIM_SINT16, short_variant, -1},
        {CIM_UINT8, short_variant, 255},
        {CIM_BOOLEAN, true_variant, true},
        {CIM_BOOLEAN, number_variant(1), true},
        {CIM_REAL64, real_variant, 2.5},
        {CIM_UINT64, text_variant("18446744073709551615"), "18446744073709551615"},
        {CIM_DATETIME, text_variant("20120806140509.000000+120"), "20120806140509.000000+120"},
        // A provider that does not keep to its own type.
        {CIM_UINT32, text_variant("12"), "12"},
        {CIM_STRING, number_variant(7), 7},
        {CIM_STRING, half_pair_variant, "a\xEF\xBF\xBDz"},
        {CIM_STRING, [](VARIANT& variant) { variant.vt = VT_NULL; }, {}},
        {CIM_UINT32, [](VARIANT& variant) { variant.vt = VT_EMPTY; }, {}},
    };
    for (const auto& each : cases) {
        OwnedVariant variant;
        each.fill(*variant);
        const Value value = value_of(*variant, each.type);
        EXPECT_EQ(value, each.expected) << "type " << each.type << ", variant " << variant->vt;
    }
}

TEST(VariantValue, KeepsAnArrayForWhoeverTakesItAsOne)
{
    OwnedVariant numbers;
    numbers->vt = VT_ARRAY | VT_I4;
    numbers->parray = SafeArrayCreateVector(VT_I4, 0, 2);
    for (LONG at = 0; at < 2; ++at) {
        LONG number = -1 - at;
        SafeArrayPutElement(numbers->parray, &at, &number);
    }
    const Value value = value_of(*numbers, CIM_UINT16 | CIM_FLAG_ARRAY);
    ASSERT_TRUE(value.items());
    EXPECT_EQ(*value.items(), (std::vector<Value>{65535, 65534}));
    EXPECT_THROW(value.text(), Failure);
    EXPECT_THROW(value.as_int32(), Failure);

    OwnedVariant texts;
    texts->vt = VT_ARRAY | VT_BSTR;
    texts->parray = SafeArrayCreateVector(VT_BSTR, 0, 1);
    LONG first = 0;
    SafeArrayPutElement(texts->parray, &first, OwnedBstr("one").get());
    EXPECT_EQ(*value_of(*texts, CIM_STRING | CIM_FLAG_ARRAY).items(), std::vector<Value>{"one"});

    OwnedVariant square;
    square->vt = VT_ARRAY | VT_I4;
    SAFEARRAYBOUND bounds[2] = {{2, 0}, {2, 0}};
    square->parray = SafeArrayCreate(VT_I4, 2, bounds);
    EXPECT_THROW(value_of(*square, CIM_SINT32 | CIM_FLAG_ARRAY), Failure);
}

} // namespace
} // namespace ostrelum::windows_platform
