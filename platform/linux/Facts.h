#pragma once

#include "platform/linux/Sysroot.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ostrelum {

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

/// What a machine tells by system calls and not by files. A fact that cannot be had is nothing.
class Facts {
public:
    virtual ~Facts() = default;

    /// The space of the volume that holds a path. Waits as long as the volume lets it wait.
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

    /// Memory in bytes of a graphics card whose driver tells no file of it, by place on the PCI bus
    /// such as "0000:01:00.0".
    virtual std::optional<std::uint64_t> graphics_memory(const std::string& slot) = 0;

    /// Minutes by which the machine's local time is ahead of UTC at a moment in seconds since 1970.
    virtual int utc_offset(std::int64_t moment) = 0;
};

/// The facts of this machine.
std::unique_ptr<Facts> live_facts();

/// The facts that a recorded machine keeps in the folder /.facts: the files statvfs (path, block
/// size, blocks, free, available), btime (path, seconds), uname (as `uname -a` prints it), id (as
/// `id` prints it), env (NAME=value), modes (connector, width, height, bits, thousandths of hertz),
/// vram (PCI place, bytes). Recorded machines stand in UTC.
std::unique_ptr<Facts> recorded_facts(const Sysroot& root);

} // namespace ostrelum
