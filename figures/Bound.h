#pragma once

#include "platform/system/Failure.h"

#include <memory>

namespace ostrelum::inline figures {

/// An object of the platform. While none is bound, any use of it throws Failure, like an operation
/// that fails.
template <class Object>
class Bound {
public:
    Bound() = default;
    Bound(std::unique_ptr<Object> object) : object_(std::move(object)) {}

    Object* operator->() const
    {
        if (!object_)
            throw Failure("the object is not bound");
        return object_.get();
    }

private:
    std::unique_ptr<Object> object_;
};

} // namespace ostrelum::inline figures
