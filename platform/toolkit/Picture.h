#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace ostrelum::inline toolkit {

/// Pixels as the window system's own 24-bit bitmaps hold them: blue, green, red, rows from top to
/// bottom, each row filled up to a multiple of 4 bytes.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
    /// Opacity of each pixel, 0 to 255, width * height without filling; empty for a picture without
    /// holes.
    std::vector<std::uint8_t> coverage;

    Bitmap() = default;
    Bitmap(int w, int h)
        : width(w), height(h),
          bytes(static_cast<std::size_t>(stride_of(w)) * static_cast<std::size_t>(h))
    {
    }

    static constexpr int stride_of(int w) { return (w * 3 + 3) & ~3; }
    int stride() const { return stride_of(width); }
    std::uint8_t* row(int y) { return bytes.data() + static_cast<std::ptrdiff_t>(y) * stride(); }
    const std::uint8_t* row(int y) const
    {
        return bytes.data() + static_cast<std::ptrdiff_t>(y) * stride();
    }

    bool operator==(const Bitmap&) const = default;
};

/// A picture that controls share. Two pictures are equal when they come from the same drawing;
/// pixels are never compared.
class Picture {
public:
    /// Makes pixels of the picture.
    using Maker = std::function<Bitmap()>;

    /// No picture.
    Picture() = default;
    /// `at_double` gives twice the width and twice the height, for screens with a scale factor
    /// above 1; without it there is no such variant.
    explicit Picture(Bitmap bitmap, Maker at_double = nullptr);
    /// One whose own pixels are made when they are first asked for, too.
    Picture(Maker pixels, Maker at_double);

    bool empty() const { return content_ == nullptr; }
    /// The pixels; an empty bitmap for no picture.
    const Bitmap& bitmap() const;
    /// The pixels at double size; an empty bitmap where there is no such variant. They are made
    /// when they are first asked for, so that only a screen that shows them pays for them.
    const Bitmap& doubled() const;
    /// A new picture of the same origin, drawn anew.
    Picture redrawn(Bitmap bitmap, Maker at_double = nullptr) const;
    Picture redrawn(Maker pixels, Maker at_double) const;
    /// Number of the origin, the same for all drawings that come from it; 0 for no picture.
    std::uint64_t id() const { return id_; }
    /// Number of the drawing, different for each one of the process.
    std::uint64_t version() const { return version_; }

    bool operator==(const Picture& other) const
    {
        return id_ == other.id_ && version_ == other.version_;
    }

private:
    /// Pixels, and what has yet to make them.
    struct Drawing {
        const Bitmap& pixels();

        Bitmap made;
        Maker make;
    };
    struct Content {
        Drawing plain, doubled;
    };
    explicit Picture(Content content);
    Picture of_this_origin(Picture drawn) const;

    std::uint64_t id_ = 0;
    std::uint64_t version_ = 0;
    std::shared_ptr<Content> content_;
};

} // namespace ostrelum::inline toolkit
