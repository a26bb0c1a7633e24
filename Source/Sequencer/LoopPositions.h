#pragma once

#include <span>

namespace Zn::Sequencer
{
/** Turns song positions into positions of a pattern: quarter notes from its anchor.
    Both spans are of one size.
*/
void fillPositions (std::span<double> positions, std::span<const double> ppq, double anchor) noexcept;

/** Replaces each position by exactly what std::fmod gives, at the price of one call of it for each pass of
    the loop: so a negative position stays negative.
*/
void wrapToLoop (std::span<double> positions, double loopLength) noexcept;
} // namespace Zn::Sequencer
