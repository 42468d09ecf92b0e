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

Picture::Picture(Bitmap bitmap, Maker at_double)
    : id_(next_number()), version_(id_),
      content_(std::make_shared<Content>(Content{std::move(bitmap), std::move(at_double), {}}))
{
}

const Bitmap& Picture::bitmap() const
{
    static const Bitmap none;
    return content_ ? content_->pixels : none;
}

const Bitmap& Picture::doubled() const
{
    static const Bitmap none;
    if (!content_)
        return none;
    if (const Maker make = std::exchange(content_->at_double, nullptr))
        content_->doubled = make();
    return content_->doubled;
}

Picture Picture::redrawn(Bitmap bitmap, Maker at_double) const
{
    Picture drawn(std::move(bitmap), std::move(at_double));
    drawn.id_ = id_;
    return drawn;
}

} // namespace ostrelum::inline toolkit
