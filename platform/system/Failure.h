#pragma once

#include <stdexcept>

namespace ostrelum::inline system {

/// The one way in which an operation of the machine fails: a query refused, a value missing or of
/// the wrong kind, a write without rights. The logic passes over it by the helpers of
/// figures/PassOver.h alone; the console tells the user of it.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace ostrelum::inline system
