#include "platform/toolkit/Resample.h"

#include <algorithm>
#include <cmath>

namespace ostrelum::inline toolkit {
namespace {

constexpr std::size_t channels = 4;

/// The pixels of a row or a column that make one new pixel, and how much of each.
struct Share {
    int first = 0;
    std::vector<double> weights;
};

/// The overlap of the pixels with a span of theirs, which is as long as a new pixel and at least
/// one.
Share share_of(int pixel, int old_count, int new_count)
{
    const double ratio = static_cast<double>(old_count) / new_count;
    const double half = std::max(ratio, 1.0) / 2;
    const double middle = (pixel + 0.5) * ratio;
    const double begin = std::clamp(middle - half, 0.0, old_count - 2 * half);
    const double end = begin + 2 * half;
    Share share{.first = static_cast<int>(begin)};
    for (int i = share.first; i < old_count && i < end; ++i)
        share.weights.push_back((std::min(i + 1.0, end) - std::max<double>(i, begin)) / (2 * half));
    return share;
}

std::size_t offset_of(int width, int x, int y)
{
    return (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
            static_cast<std::size_t>(x)) *
           channels;
}

/// The same number of rows, each of another length.
OpacityPixels with_width(const OpacityPixels& pixels, int width)
{
    OpacityPixels made{width, pixels.height, {}};
    made.bytes.resize(offset_of(width, 0, pixels.height));
    for (int x = 0; x < width; ++x) {
        const Share share = share_of(x, pixels.width, width);
        for (int y = 0; y < pixels.height; ++y) {
            for (std::size_t channel = 0; channel < channels; ++channel) {
                double sum = 0;
                std::size_t at = offset_of(pixels.width, share.first, y) + channel;
                for (const double weight : share.weights) {
                    sum += weight * pixels.bytes[at];
                    at += channels;
                }
                made.bytes[offset_of(width, x, y) + channel] =
                    static_cast<std::uint8_t>(std::lround(sum));
            }
        }
    }
    return made;
}

/// Rows become columns.
OpacityPixels turned(const OpacityPixels& pixels)
{
    OpacityPixels made{pixels.height, pixels.width, {}};
    made.bytes.resize(pixels.bytes.size());
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            std::copy_n(pixels.bytes.data() + offset_of(pixels.width, x, y), channels,
                        made.bytes.data() + offset_of(made.width, y, x));
    }
    return made;
}

} // namespace

OpacityPixels opacity_pixels(const Bitmap& bitmap)
{
    const auto rows = static_cast<std::size_t>(std::max(bitmap.height, 0));
    const auto columns = static_cast<std::size_t>(std::max(bitmap.width, 0));
    if (rows == 0 || columns == 0 ||
        bitmap.bytes.size() < rows * static_cast<std::size_t>(bitmap.stride()))
        return {};
    const bool holes = bitmap.coverage.size() >= rows * columns;
    OpacityPixels made{bitmap.width, bitmap.height, {}};
    made.bytes.resize(rows * columns * channels);
    for (int y = 0; y < bitmap.height; ++y) {
        for (int x = 0; x < bitmap.width; ++x) {
            const std::size_t at = offset_of(bitmap.width, x, y);
            std::copy_n(bitmap.row(y) + 3 * static_cast<std::ptrdiff_t>(x), 3,
                        made.bytes.data() + at);
            made.bytes[at + 3] = holes ? bitmap.coverage[at / channels] : 255;
        }
    }
    return made;
}

OpacityPixels premultiplied(OpacityPixels pixels)
{
    for (std::size_t at = 0; at < pixels.bytes.size(); at += channels) {
        const int opacity = pixels.bytes[at + 3];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            std::uint8_t& byte = pixels.bytes[at + channel];
            byte = static_cast<std::uint8_t>((byte * opacity + 127) / 255);
        }
    }
    return pixels;
}

OpacityPixels resampled(const OpacityPixels& pixels, int width, int height)
{
    if (pixels.width <= 0 || pixels.height <= 0 || width <= 0 || height <= 0)
        return {};
    const OpacityPixels wide = width == pixels.width ? pixels : with_width(pixels, width);
    return height == wide.height ? wide : turned(with_width(turned(wide), height));
}

} // namespace ostrelum::inline toolkit
