#include "Midi/LooseEnds.h"

namespace Zn::Midi
{
void LooseEnds::follow (const juce::MidiBuffer& stream) noexcept
{
    for (const auto event : stream)
    {
        notes.follow (event);

        if (isController (event, sustainController))
            pedals.set (static_cast<std::size_t> (channelOf (event) - 1), isPedalDown (event));
    }
}

void LooseEnds::end (EventWriter& out, int sample) noexcept
{
    notes.endAll (out, sample);

    for (std::size_t channel = 0; channel < pedals.size(); ++channel)
        if (pedals.test (channel))
            out.add (ShortMessage::controller (static_cast<int> (channel) + 1, sustainController, 0), sample);

    pedals.reset();
}
} // namespace Zn::Midi
