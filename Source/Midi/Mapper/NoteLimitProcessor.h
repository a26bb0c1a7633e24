#pragma once

#include "Midi/Mapper/NoteModifierProcessor.h"
#include "Midi/PitchLimits.h"

namespace Zn::Midi::Mapper
{
/** Holds notes within limits, both included; where low is above high, low comes first. Thread: audio. */
class NoteLimitProcessor : public NoteModifierProcessor
{
public:
    /** Restarts what sounds, with the next buffer, if the limits are new ones. */
    void setLimits (PitchLimits newLimits) noexcept
    {
        if (std::exchange (limits, newLimits) != newLimits)
            markChanged();
    }

    int map (int note) const noexcept override
    {
        return limits.low > note ? limits.low : std::min (limits.high, note);
    }

private:
    PitchLimits limits = wholeKeyboard;
};
} // namespace Zn::Midi::Mapper
