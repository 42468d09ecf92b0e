#include "platform/linux/devices/KernelMode.h"

#include "platform/linux/files/Descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <vector>

namespace ostrelum::linux_platform {
namespace {

/// The kernel's interface for display modes (include/uapi/drm/drm_mode.h), as much of it as is
/// asked for. Pointers go as 64-bit numbers.
struct ModeInfo {
    std::uint32_t clock_kHz;
    std::uint16_t hdisplay, hsync_start, hsync_end, htotal, hskew;
    std::uint16_t vdisplay, vsync_start, vsync_end, vtotal, vscan;
    std::uint32_t vrefresh, flags, type;
    char name[32];
};
struct Resources {
    std::uint64_t fbs, crtcs, connectors, encoders;
    std::uint32_t count_fbs, count_crtcs, count_connectors, count_encoders;
    std::uint32_t min_width, max_width, min_height, max_height;
};
struct ConnectorState {
    std::uint64_t encoders, modes, properties, property_values;
    std::uint32_t count_modes, count_properties, count_encoders;
    std::uint32_t encoder_id, connector_id, type, type_number;
    std::uint32_t connection, width_mm, height_mm, subpixel, padding;
};
struct EncoderState {
    std::uint32_t encoder_id, type, crtc_id, possible_crtcs, possible_clones;
};
struct CrtcState {
    std::uint64_t connectors;
    std::uint32_t count_connectors, crtc_id, fb_id, x, y, gamma_size, mode_valid;
    ModeInfo mode;
};
struct PictureMemory {
    std::uint32_t fb_id, width, height, pitch, bits_per_pixel, depth, handle;
};
static_assert(sizeof(ModeInfo) == 68 && sizeof(Resources) == 64 && sizeof(ConnectorState) == 80 &&
              sizeof(EncoderState) == 20 && sizeof(CrtcState) == 104 &&
              sizeof(PictureMemory) == 28);

constexpr unsigned long ask_resources = _IOWR('d', 0xA0, Resources);
constexpr unsigned long ask_crtc = _IOWR('d', 0xA1, CrtcState);
constexpr unsigned long ask_encoder = _IOWR('d', 0xA6, EncoderState);
constexpr unsigned long ask_connector = _IOWR('d', 0xA7, ConnectorState);
constexpr unsigned long ask_picture = _IOWR('d', 0xAD, PictureMemory);

template <class State>
bool ask(const Descriptor& card, unsigned long what, State& state)
{
    int result = 0;
    do {
        result = ::ioctl(card.number(), what, &state);
    } while (result != 0 && (errno == EINTR || errno == EAGAIN));
    return result == 0;
}

std::uint64_t address(void* memory)
{
    return reinterpret_cast<std::uintptr_t>(memory);
}

std::vector<std::uint32_t> connector_ids(const Descriptor& card)
{
    constexpr std::uint32_t most = 64;
    std::vector<std::uint32_t> ids(most);
    Resources resources = {};
    resources.connectors = address(ids.data());
    resources.count_connectors = most;
    if (!ask(card, ask_resources, resources))
        return {};
    ids.resize(std::min(resources.count_connectors, most));
    return ids;
}

/// Asks with room for one mode: with none, the kernel would query the monitor first.
std::optional<ConnectorState> connector_state(const Descriptor& card, std::uint32_t id)
{
    ModeInfo mode = {};
    ConnectorState state = {};
    state.connector_id = id;
    state.count_modes = 1;
    state.modes = address(&mode);
    return ask(card, ask_connector, state) ? std::optional(state) : std::nullopt;
}

/// What drives the connector; nothing if it is off.
std::optional<CrtcState> crtc_of(const Descriptor& card, const ConnectorState& connector)
{
    EncoderState encoder = {};
    encoder.encoder_id = connector.encoder_id;
    CrtcState crtc = {};
    if (encoder.encoder_id == 0 || !ask(card, ask_encoder, encoder) || encoder.crtc_id == 0)
        return std::nullopt;
    crtc.crtc_id = encoder.crtc_id;
    if (!ask(card, ask_crtc, crtc) || crtc.mode_valid == 0)
        return std::nullopt;
    return crtc;
}

/// Pictures in several planes have no such number; the kernel's drivers show them in pixels of 32
/// bits too.
int bits_of(const Descriptor& card, std::uint32_t picture)
{
    PictureMemory memory = {};
    memory.fb_id = picture;
    const bool known = ask(card, ask_picture, memory) && memory.bits_per_pixel != 0;
    return known ? static_cast<int>(memory.bits_per_pixel) : 32;
}

int refresh_of(const ModeInfo& mode)
{
    constexpr std::uint32_t interlaced = 1U << 4, doubled_lines = 1U << 5;
    const std::uint64_t scans = std::max<std::uint64_t>(mode.vscan, 1);
    const std::uint64_t dots = std::uint64_t{mode.htotal} * mode.vtotal * scans *
                               ((mode.flags & doubled_lines) != 0 ? 2 : 1);
    const std::uint64_t pictures = (mode.flags & interlaced) != 0 ? 2 : 1;
    constexpr std::uint64_t mHz_in_kHz = 1'000'000;
    const std::uint64_t refresh =
        dots == 0 ? 0 : (mode.clock_kHz * pictures * mHz_in_kHz + dots / 2) / dots;
    return static_cast<int>(refresh);
}

/// The kernel's name for a connector of a kind by its number, such as "HDMI-A-1".
std::string connector_label(std::uint32_t type, std::uint32_t number)
{
    constexpr std::array<const char*, 21> types = {
        "Unknown", "VGA",       "DVI-I", "DVI-D", "DVI-A",     "Composite", "SVIDEO",
        "LVDS",    "Component", "DIN",   "DP",    "HDMI-A",    "HDMI-B",    "TV",
        "eDP",     "Virtual",   "DSI",   "DPI",   "Writeback", "SPI",       "USB"};
    return (type < types.size() ? types[type] : types[0]) + ("-" + std::to_string(number));
}

} // namespace

std::optional<DisplayMode> kernel_mode(const std::string& connector)
{
    const std::size_t dash = connector.find('-');
    const std::string path = "/dev/dri/" + connector.substr(0, dash);
    if (dash == std::string::npos || path.find("..") != std::string::npos)
        return std::nullopt;
    const Descriptor card(::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NONBLOCK));
    for (const std::uint32_t id : connector_ids(card)) {
        const auto state = connector_state(card, id);
        if (!state ||
            connector.substr(dash + 1) != connector_label(state->type, state->type_number))
            continue;
        const auto crtc = crtc_of(card, *state);
        if (!crtc)
            return std::nullopt;
        return DisplayMode{crtc->mode.hdisplay, crtc->mode.vdisplay, bits_of(card, crtc->fb_id),
                           refresh_of(crtc->mode)};
    }
    return std::nullopt;
}

} // namespace ostrelum::linux_platform
