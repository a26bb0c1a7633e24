#include "Midi/Learn/LearnerRecord.h"

namespace Zn::Midi::Learn
{
bool LearnerRecord::offer (const Event& event) noexcept
{
    const auto seen = state.load();

    if (seen == armed && event.numBytes == static_cast<int> (message.bytes.size()))
    {
        std::copy_n (event.data, message.bytes.size(), message.bytes.begin());

        // An exchange on condition: a learner that was stopped in the meantime must not come back to life.
        if (auto expected = std::int32_t { armed }; state.compare_exchange_strong (expected, captured))
            ++changeCount;
    }

    return seen == armed || seen == captured;
}

std::optional<juce::MidiMessage> LearnerRecord::getCaptured() const
{
    if (state.load() != captured)
        return {};

    return juce::MidiMessage (message.bytes.data(), static_cast<int> (message.bytes.size()));
}
} // namespace Zn::Midi::Learn
