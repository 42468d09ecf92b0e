#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ostrelum::linux_platform {

/// The space of a volume, in blocks.
struct VolumeSpace {
    /// Bytes.
    std::uint64_t block_size = 0;
    std::uint64_t blocks = 0;
    std::uint64_t free = 0;
    /// Of the free ones, those that ordinary users may have.
    std::uint64_t available = 0;
    bool operator==(const VolumeSpace&) const = default;
};

/// What a connector shows. A number of 0 is not known.
struct DisplayMode {
    /// Pixels.
    int width = 0;
    int height = 0;
    int bits_per_pixel = 0;
    int refresh_mHz = 0;
    bool operator==(const DisplayMode&) const = default;
};

/// When a password may and must be changed.
struct PasswordPolicy {
    bool expires = false;
    bool changeable = false;
};

/// What a machine answers by system calls, not by files. Nothing: the call failed or has no answer.
class SystemCalls {
public:
    virtual ~SystemCalls() = default;

    /// The space of the volume that holds a path. Waits two seconds at most.
    virtual std::optional<VolumeSpace> space(const std::string& path) = 0;

    /// When a file came into being, in seconds since 1970.
    virtual std::optional<std::int64_t> birth_time(const std::string& path) = 0;

    /// The kernel's name for the kind of processor, such as "x86_64".
    virtual std::optional<std::string> processor_kind() = 0;

    /// Number of the user who runs the program.
    virtual std::optional<std::uint32_t> user_id() = 0;

    /// A variable of the user's environment that is set.
    virtual std::optional<std::string> variable(std::string_view name) = 0;

    /// The mode that the kernel drives a connector in, such as "card0-HDMI-A-1". Only the user who
    /// sits at the machine may ask.
    virtual std::optional<DisplayMode> display_mode(const std::string& connector) = 0;

    /// Memory in bytes of a graphics card whose driver publishes it in no file, by place on the PCI
    /// bus such as "0000:01:00.0".
    virtual std::optional<std::uint64_t> graphics_memory(const std::string& slot) = 0;

    /// What systemd's compiled database of hardware has under `key` for a device, which is given by
    /// the kernel's alias such as "usb:v046DpC31C". The library that reads the database trusts it:
    /// only the machine's own is read, and never a file that somebody else sent.
    virtual std::optional<std::string> hardware_name(const std::string& alias, const char* key) = 0;

    /// The rules for the password of an account, and when it last logged in, in seconds since 1970,
    /// by the accounts service (AccountsService.h).
    virtual std::optional<PasswordPolicy> password_policy(std::uint64_t uid) = 0;
    virtual std::optional<std::int64_t> login_time(std::uint64_t uid) = 0;

    /// The line that /etc/passwd would have of an account which a directory or a home manager
    /// knows, without a full name. Such services keep at hand who is logged in, so that this one
    /// question seldom has to cross a network.
    virtual std::optional<std::string> directory_account(std::uint64_t uid) = 0;

    /// Minutes by which the machine's local time is ahead of UTC at a moment in seconds since 1970.
    virtual int utc_offset(std::int64_t moment) = 0;
};

} // namespace ostrelum::linux_platform
