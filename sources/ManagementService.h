#pragma once

#include "sources/Value.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ostrelum::inline sources {

/// One object of a result: properties by name, in the class's own order and spelling.
class Instance {
public:
    using Property = std::pair<std::string, Value>;

    Instance() = default;
    explicit Instance(std::vector<Property> properties) : properties_(std::move(properties)) {}

    /// The property of that name, in any case of its ASCII letters. Throws Failure if the object
    /// has none; a null property is no failure here, but its conversions are.
    const Value& operator[](std::string_view name) const;

    const std::vector<Property>& properties() const { return properties_; }

private:
    std::vector<Property> properties_;
};

/// The objects that a query gave, in the service's order.
using ResultSet = std::vector<Instance>;

/// The management service: it answers WQL from the classes of the namespace root\cimv2.
class ManagementService {
public:
    virtual ~ManagementService() = default;

    /// Runs a query. The objects bear the selected properties and those that come unasked (Key).
    /// Throws Failure for text that is no WQL, for a class or a property that the namespace does
    /// not have, and when the service is gone.
    virtual ResultSet ExecQuery(std::string_view wql) = 0;
};

} // namespace ostrelum::inline sources
