#include "platform/toolkit/Picture.h"

#include <utility>

namespace ostrelum::inline toolkit {
namespace {

std::uint64_t next_number()
{
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

Picture::Picture(Content content)
    : id_(next_number()), version_(id_), content_(std::make_shared<Content>(std::move(content)))
{
}

Picture::Picture(Bitmap bitmap, Maker at_double)
    : Picture(Content{{std::move(bitmap), nullptr}, {{}, std::move(at_double)}})
{
}

Picture::Picture(Maker pixels, Maker at_double)
    : Picture(Content{{{}, std::move(pixels)}, {{}, std::move(at_double)}})
{
}

const Bitmap& Picture::Drawing::pixels()
{
    if (const Maker maker = std::exchange(make, nullptr))
        made = maker();
    return made;
}

const Bitmap& Picture::bitmap() const
{
    static const Bitmap none;
    return content_ ? content_->plain.pixels() : none;
}

const Bitmap& Picture::doubled() const
{
    static const Bitmap none;
    return content_ ? content_->doubled.pixels() : none;
}

Picture Picture::redrawn(Bitmap bitmap, Maker at_double) const
{
    return of_this_origin(Picture(std::move(bitmap), std::move(at_double)));
}

Picture Picture::redrawn(Maker pixels, Maker at_double) const
{
    return of_this_origin(Picture(std::move(pixels), std::move(at_double)));
}

Picture Picture::of_this_origin(Picture drawn) const
{
    drawn.id_ = id_;
    return drawn;
}

} // namespace ostrelum::inline toolkit
