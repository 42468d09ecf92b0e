#pragma once

#include <string>

#include <windows.h>

namespace ostrelum::windows_platform {

/// A mark that one process of the user's session can hold. It goes with its process, however that
/// ends.
class SingleInstance {
public:
    explicit SingleInstance(std::string user) : user_(std::move(user)) {}
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Takes the mark if nobody has it; whether another process does.
    bool held_elsewhere();

private:
    std::string user_;
    HANDLE mutex_ = nullptr;
};

} // namespace ostrelum::windows_platform
