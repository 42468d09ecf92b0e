#include "platform/linux/files/PathWalk.h"

#include <utility>

namespace ostrelum::linux_platform {

std::string PathWalk::take()
{
    std::string name = std::move(names_.back());
    names_.pop_back();
    return name;
}

bool PathWalk::follow(std::string_view target)
{
    put_first(target);
    return ++links_ <= link_limit;
}

void PathWalk::put_first(std::string_view path)
{
    while (!path.empty()) {
        const std::size_t begin = path.rfind('/') + 1;
        const std::string_view name = path.substr(begin);
        if (!name.empty() && name != ".")
            names_.emplace_back(name);
        path = path.substr(0, begin == 0 ? 0 : begin - 1);
    }
}

} // namespace ostrelum::linux_platform
