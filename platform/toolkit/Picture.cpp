#include "platform/toolkit/Picture.h"

namespace ostrelum {
namespace {

std::uint64_t next_number()
{
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

Picture::Picture(Bitmap bitmap)
    : id_(next_number()), version_(id_), pixels_(std::make_shared<const Bitmap>(std::move(bitmap)))
{
}

const Bitmap& Picture::bitmap() const
{
    static const Bitmap none;
    return pixels_ ? *pixels_ : none;
}

Picture Picture::redrawn(Bitmap bitmap) const
{
    Picture drawn(std::move(bitmap));
    drawn.id_ = id_;
    return drawn;
}

} // namespace ostrelum
