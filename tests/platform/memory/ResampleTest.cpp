#include "platform/toolkit/Resample.h"

#include <gtest/gtest.h>

namespace ostrelum::inline toolkit {
namespace {

/// Pixels that are grey, as bright as told, and opaque.
OpacityPixels greys(int width, int height, const std::vector<int>& values)
{
    OpacityPixels pixels{width, height, {}};
    for (const int value : values) {
        pixels.bytes.insert(pixels.bytes.end(), 3, static_cast<std::uint8_t>(value));
        pixels.bytes.push_back(255);
    }
    return pixels;
}

TEST(Resample, TakesTheMeanOfWhatANewPixelCovers)
{
    const struct {
        int width, height;
        std::vector<int> values;
        int new_width, new_height;
        std::vector<int> expected;
    } cases[] = {
        {2, 2, {0, 100, 200, 50}, 2, 2, {0, 100, 200, 50}},
        {2, 2, {0, 100, 200, 48}, 1, 1, {87}},
        {4, 1, {0, 10, 100, 200}, 2, 1, {5, 150}},
        {3, 1, {30, 60, 90}, 2, 1, {40, 80}},
        {1, 4, {0, 10, 100, 200}, 1, 2, {5, 150}},
        {2, 1, {0, 100}, 4, 1, {0, 25, 75, 100}},
        {1, 1, {7}, 3, 2, {7, 7, 7, 7, 7, 7}},
    };
    for (const auto& c : cases) {
        const OpacityPixels made =
            resampled(greys(c.width, c.height, c.values), c.new_width, c.new_height);
        EXPECT_EQ(std::pair(made.width, made.height), std::pair(c.new_width, c.new_height));
        EXPECT_EQ(made.bytes, greys(c.new_width, c.new_height, c.expected).bytes)
            << c.width << "x" << c.height << " to " << c.new_width << "x" << c.new_height;
    }
    EXPECT_TRUE(resampled(greys(1, 1, {7}), 0, 3).bytes.empty());
    EXPECT_TRUE(resampled({}, 3, 3).bytes.empty());
}

TEST(Resample, GivesEachPixelItsOpacity)
{
    Bitmap bitmap(2, 1);
    bitmap.bytes = {200, 100, 50, 255, 255, 255, 0, 0};
    EXPECT_EQ(opacity_pixels(bitmap).bytes,
              (std::vector<std::uint8_t>{200, 100, 50, 255, 255, 255, 255, 255}));
    bitmap.coverage = {128, 0};
    EXPECT_EQ(premultiplied(opacity_pixels(bitmap)).bytes,
              (std::vector<std::uint8_t>{100, 50, 25, 128, 0, 0, 0, 0}));
    bitmap.bytes.pop_back();
    EXPECT_TRUE(opacity_pixels(bitmap).bytes.empty()) << "torn";
    EXPECT_TRUE(opacity_pixels({}).bytes.empty());
}

} // namespace
} // namespace ostrelum::inline toolkit
