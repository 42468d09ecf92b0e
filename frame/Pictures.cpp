#include "frame/Pictures.h"

#include "art/PictureFiles.h"
#include "skin/Bmp.h"

#include <map>
#include <string>

namespace ostrelum {

Picture art_picture(std::string_view name)
{
    static std::map<std::string, Picture, std::less<>> read;
    const auto found = read.find(name);
    if (found != read.end())
        return found->second;
    auto bitmap = read_bmp(picture_file(name));
    const Picture picture = bitmap ? Picture(std::move(*bitmap)) : Picture();
    read.emplace(name, picture);
    return picture;
}

} // namespace ostrelum
