#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ostrelum::linux_platform {

/// Symbolic links that the kernel follows on one way (path_resolution(7)).
inline constexpr int link_limit = 40;

/// The names of a path that are still to be walked, one after the other. What a link leads to is
/// walked before the rest.
class PathWalk {
public:
    explicit PathWalk(std::string_view path) { put_first(path); }

    bool done() const { return names_.empty(); }

    /// The next name; ".." among them, "." not.
    std::string take();

    /// Goes on over a link with that text. False if it is one more than the kernel follows.
    bool follow(std::string_view target);

private:
    void put_first(std::string_view path);

    /// The next one last.
    std::vector<std::string> names_;
    int links_ = 0;
};

} // namespace ostrelum::linux_platform
