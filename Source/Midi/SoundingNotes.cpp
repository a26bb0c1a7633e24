#include "Midi/SoundingNotes.h"

namespace Zn::Midi
{
void SoundingNotes::follow (const Event& event) noexcept
{
    if (isNote (event))
        sounding[static_cast<std::size_t> (channelOf (event) - 1)].set (
            static_cast<std::size_t> (noteOf (event)),
            isNoteOn (event));
}

void SoundingNotes::endAll (EventWriter& out, int sample) noexcept
{
    for (std::size_t channel = 0; channel < numChannels; ++channel)
        for (std::size_t note = 0; sounding[channel].any(); ++note)
            if (sounding[channel].test (note))
            {
                out.add (ShortMessage::noteOff (static_cast<int> (channel) + 1, static_cast<int> (note)),
                         sample);
                sounding[channel].reset (note);
            }
}
} // namespace Zn::Midi
