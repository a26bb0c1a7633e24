#pragma once

namespace Zn::Sequencer::Modifiers
{
/** Whether a time, a sum of lengths, comes before another one. What differs by rounding only is the same time: ten
    beats of 4/40 add up to a little less than the bar they fill.
*/
constexpr bool isBefore (double time, double other) noexcept
{
    constexpr auto rounding = 1.0e-6; // quarter notes

    return time < other - rounding;
}
} // namespace Zn::Sequencer::Modifiers
