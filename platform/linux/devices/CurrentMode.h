#pragma once

#include "platform/linux/devices/SessionScreens.h"
#include "platform/linux/files/MachineView.h"

namespace ostrelum::linux_platform {

/// What a graphics card shows at its main connector, 0 for what is not known. `first` marks the
/// card that takes what belongs to no card: screens that the window system gives other names than
/// the kernel does, and the picture that the firmware left.
DisplayMode current_mode(const MachineView& machine, const SessionScreens& screens,
                         const GraphicsCard& card, bool first);

/// The data of the monitor at that connector.
std::optional<Edid> main_monitor(const MachineView& machine, const SessionScreens& screens,
                                 const GraphicsCard& card);

} // namespace ostrelum::linux_platform
