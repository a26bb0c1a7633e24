#include "Sequencer/NoteEvent.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Zn::Sequencer
{
namespace
{
void addVelocity (Reflector& r, float& velocity)
{
    try
    {
        r.add ("velocity", velocity);
    }
    catch (const std::logic_error&) // text that is no number, or one out of range
    {
        velocity = 0.0f;
    }

    if (! std::isfinite (velocity))
        velocity = 0.0f;
}
} // namespace

void NoteEvent::reflect (Reflector& r)
{
    // A row outside the drawing stays outside and so stays silent, but near enough to calculate with.
    constexpr auto belowRows = -1;
    constexpr auto aboveRows = 128;

    r.add ("noteNum", noteNum);
    addVelocity (r, velocity);
    r.add ("channel", channel);

    if (r.isLoading())
        noteNum = std::clamp (noteNum, belowRows, aboveRows);
}
} // namespace Zn::Sequencer
