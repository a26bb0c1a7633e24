#pragma once

#include "Plugin/Vornel/State.h"

#include <optional>

namespace Zn::GUI
{
/** Where the clock is in the pattern that is heard. */
struct PlayPlace
{
    int slot = 0;      // 0..7
    double time = 0.0; // part of the pattern, 0 to 1

    /** None while the clock stands still, and in a pattern without notes. Thread: message. */
    static std::optional<PlayPlace> of (Audio::Plugins::Vornel::State& state);

    bool operator== (const PlayPlace&) const = default;
};
} // namespace Zn::GUI
