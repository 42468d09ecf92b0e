#pragma once

#include <unistd.h>
#include <utility>

namespace ostrelum::linux_platform {

/// An open file, closed at the end of its scope. Negative: none.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }

    /// Hands the file over: it stays open, for whoever takes the number to close.
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

} // namespace ostrelum::linux_platform
