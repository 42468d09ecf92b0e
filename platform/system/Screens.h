#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum::inline system {

/// One screen as the window system knows it. A number of 0 is not known.
struct ScreenFact {
    /// Connector name, such as "HDMI-A-1".
    std::string connector;
    std::string maker;
    std::string model;
    /// Pixels of the current mode.
    int width = 0;
    int height = 0;
    int bits_per_pixel = 0;
    int refresh_mHz = 0;
    bool primary = false;
    bool operator==(const ScreenFact&) const = default;
};

/// What only the desktop session knows of screens and pointers. Empty without a window.
struct SessionFacts {
    std::vector<ScreenFact> screens;
    std::optional<bool> left_handed;
    bool operator==(const SessionFacts&) const = default;
};

using SessionFactsSource = std::function<SessionFacts()>;

} // namespace ostrelum::inline system
