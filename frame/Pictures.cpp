#include "frame/Pictures.h"

#include "art/ArtPixels.h"

#include <map>
#include <string>

namespace ostrelum::inline frame {
namespace {

/// The bitmap of a picture of the art; an empty one for a name that is not there.
Bitmap art_bitmap(const std::string& name)
{
    const ArtPixels pixels = art_pixels(name);
    Bitmap bitmap(pixels.width, pixels.height);
    bitmap.bytes.assign(pixels.colours.begin(), pixels.colours.end());
    bitmap.coverage.assign(pixels.alpha.begin(), pixels.alpha.end());
    return bitmap;
}

} // namespace

Picture art_picture(std::string_view name)
{
    static std::map<std::string, Picture, std::less<>> read;
    const auto found = read.find(name);
    if (found != read.end())
        return found->second;
    const std::string file(name);
    Picture picture;
    if (art_pixels(file).width != 0)
        picture = Picture([file] { return art_bitmap(file); },
                          [file] { return art_bitmap(file + "@2x"); });
    read.emplace(name, picture);
    return picture;
}

} // namespace ostrelum::inline frame
