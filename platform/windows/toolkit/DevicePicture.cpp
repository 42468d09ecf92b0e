#include "platform/windows/toolkit/DevicePicture.h"

#include "platform/toolkit/Resample.h"
#include "platform/windows/toolkit/Drawing.h"

#include <algorithm>

namespace ostrelum::windows_platform {
namespace {

BITMAPINFO info_of(int width, int height, WORD bits)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    // Rows from top to bottom.
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

/// A bitmap of the system with these pixels; nothing where there are none.
OwnedBitmap bitmap_of(const OpacityPixels& pixels)
{
    if (pixels.bytes.empty())
        return {};
    const BITMAPINFO info = info_of(pixels.width, pixels.height, 32);
    void* bits = nullptr;
    OwnedBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (bitmap)
        std::ranges::copy(pixels.bytes, static_cast<std::uint8_t*>(bits));
    return bitmap;
}

bool is_torn(const Bitmap& bitmap)
{
    return bitmap.width <= 0 || bitmap.height <= 0 ||
           bitmap.bytes.size() <
               static_cast<std::size_t>(bitmap.stride()) * static_cast<std::size_t>(bitmap.height);
}

void draw_as_it_is(HDC dc, POINT at, const Bitmap& bitmap)
{
    if (is_torn(bitmap))
        return;
    const BITMAPINFO info = info_of(bitmap.width, bitmap.height, 24);
    const auto rows = static_cast<UINT>(bitmap.height);
    SetDIBitsToDevice(dc, at.x, at.y, static_cast<DWORD>(bitmap.width), rows, 0, 0, 0, rows,
                      bitmap.bytes.data(), &info, DIB_RGB_COLORS);
}

} // namespace

void DevicePicture::set(const Picture& picture, Scale scale)
{
    picture_ = picture;
    made_ = {};
    const Bitmap& plain = picture.bitmap();
    const SIZE size{scale.to_screen(plain.width), scale.to_screen(plain.height)};
    if (size.cx == plain.width && plain.coverage.empty())
        return;
    const bool enlarged = size.cx > plain.width && picture.doubled().width > 0;
    const OpacityPixels pixels =
        premultiplied(opacity_pixels(enlarged ? picture.doubled() : plain));
    made_ = bitmap_of(resampled(pixels, size.cx, size.cy));
    made_size_ = size;
}

void DevicePicture::draw(HDC dc, POINT at) const
{
    if (!made_) {
        draw_as_it_is(dc, at, picture_.bitmap());
        return;
    }
    const HDC source = CreateCompatibleDC(dc);
    {
        const Selected pixels(source, made_.get());
        constexpr BLENDFUNCTION by_opacity{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(dc, at.x, at.y, made_size_.cx, made_size_.cy, source, 0, 0, made_size_.cx,
                   made_size_.cy, by_opacity);
    }
    DeleteDC(source);
}

OwnedIcon icon_of(const Picture& picture, int size, const Point* hot_spot)
{
    const bool enlarged = picture.bitmap().width < size && picture.doubled().width > 0;
    const OpacityPixels pixels = opacity_pixels(enlarged ? picture.doubled() : picture.bitmap());
    const OwnedBitmap colours = bitmap_of(pixels);
    // The opacity counts; an icon has to have this second mask all the same.
    const OwnedBitmap mask(CreateBitmap(pixels.width, pixels.height, 1, 1, nullptr));
    if (!colours || !mask)
        return {};
    ICONINFO info{};
    info.fIcon = hot_spot == nullptr;
    const int scale = enlarged ? 2 : 1;
    info.xHotspot = static_cast<DWORD>(hot_spot ? hot_spot->x * scale : 0);
    info.yHotspot = static_cast<DWORD>(hot_spot ? hot_spot->y * scale : 0);
    info.hbmMask = mask.get();
    info.hbmColor = colours.get();
    return OwnedIcon(CreateIconIndirect(&info));
}

} // namespace ostrelum::windows_platform
