#include "skin/Bmp.h"

#include <algorithm>

namespace ostrelum {
namespace {

/// Largest side of a picture, in pixels; larger figures are nonsense.
constexpr std::uint32_t MaxSide = 4096;

std::uint32_t little_endian(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t count)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < count; ++i)
        number |= static_cast<std::uint32_t>(bytes[at + i]) << (8 * i);
    return number;
}

/// What the file's and the information header say (BITMAPFILEHEADER, BITMAPINFOHEADER).
struct Header {
    std::uint32_t pixels_at;
    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t bytes_per_pixel;
    std::size_t row_bytes() const { return (std::size_t{width} * bytes_per_pixel + 3) / 4 * 4; }
};

std::optional<Header> read_header(std::span<const std::uint8_t> file)
{
    if (file.size() < 54 || file[0] != 'B' || file[1] != 'M')
        return std::nullopt;
    const std::uint32_t bits = little_endian(file, 28, 2);
    const std::uint32_t compression = little_endian(file, 30, 4);
    const Header header{little_endian(file, 10, 4), little_endian(file, 18, 4),
                        little_endian(file, 22, 4), bits / 8};
    if ((bits != 24 && bits != 32) || compression != 0)
        return std::nullopt;
    if (header.width == 0 || header.width > MaxSide || header.height == 0 ||
        header.height > MaxSide)
        return std::nullopt;
    if (header.pixels_at > file.size() ||
        file.size() - header.pixels_at < header.row_bytes() * header.height)
        return std::nullopt;
    return header;
}

/// Parts the colours of a row of 32-bit pixels from their coverage.
void split_row(const std::uint8_t* source, std::uint8_t* dest, Bitmap& bitmap)
{
    for (int x = 0; x < bitmap.width; ++x, source += 4, dest += 3) {
        std::copy_n(source, 3, dest);
        bitmap.coverage.push_back(source[3]);
    }
}

} // namespace

std::optional<Bitmap> read_bmp(std::span<const std::uint8_t> file)
{
    const auto header = read_header(file);
    if (!header)
        return std::nullopt;
    Bitmap bitmap(static_cast<int>(header->width), static_cast<int>(header->height));
    const bool holed = header->bytes_per_pixel == 4;
    if (holed)
        bitmap.coverage.reserve(std::size_t{header->width} * header->height);
    for (int y = 0; y < bitmap.height; ++y) {
        const auto from_foot = static_cast<std::size_t>(bitmap.height - 1 - y);
        const std::uint8_t* source =
            file.data() + header->pixels_at + from_foot * header->row_bytes();
        if (holed)
            split_row(source, bitmap.row(y), bitmap);
        else
            std::copy_n(source, 3 * header->width, bitmap.row(y));
    }
    return bitmap;
}

} // namespace ostrelum
