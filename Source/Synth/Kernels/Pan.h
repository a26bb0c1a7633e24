#pragma once

#include "Synth/Kernels/LinearRamp.h"
#include "Synth/Kernels/Stereo.h"

#include <span>

namespace Zn::Audio::Kernels
{
/** The gains of both sides for a place from 0, left, to 1, right. Both powers together stay the same. */
Stereo panGains (float pan) noexcept;

/** The gains of a run of samples while the place moves, each side scaled by one more gain. Advances the ramp.

    Thread: audio.
*/
void fillPanGains (LinearRamp& pan, float gain, std::span<Stereo> gains) noexcept;

/** The same for a gain that moves and has no place: both sides get the ramp's value. */
void fillGains (LinearRamp& gain, std::span<Stereo> gains) noexcept;
} // namespace Zn::Audio::Kernels
