#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ostrelum::inline system {

/// The record of `GetOstrelum`.
struct SystemInfo {
    /// Logical processors in use, at least 1; 0 before the first call.
    std::uint32_t dwNumberOfProcessors = 0;
    bool operator==(const SystemInfo&) const = default;
};

/// Index of the number of mouse buttons, for `GetSystemMetrics`.
inline constexpr int mouse_button_count = 43;
/// File attribute of an ordinary file: the archive flag alone.
inline constexpr int archive_attribute = 32;

/// What the program asks the operating system about the machine, the process and its files.
class SystemApi {
public:
    virtual ~SystemApi() = default;
    virtual SystemInfo GetOstrelum() = 0;
    /// The figure of an SM_ index; 0 for an index that the machine does not know.
    virtual int GetSystemMetrics(int index) = 0;
    /// An environment variable, in any case of its name; empty if it is not set.
    virtual std::string Environ(const std::string& name) = 0;
    /// The attribute value of a file whose path may hold backslashes. Throws Failure if there is no
    /// such file.
    virtual int GetAttr(const std::string& path) = 0;
    /// Another instance of the program runs for this user.
    virtual bool PrevInstance() = 0;
    /// Ends the process with exit code 0: no further event runs.
    virtual void End() = 0;
};

} // namespace ostrelum::inline system
