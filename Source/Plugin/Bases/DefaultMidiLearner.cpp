#include "Plugin/Bases/DefaultMidiLearner.h"

#include <juce_events/juce_events.h>

#include <utility>

namespace Zn::Audio::Plugin
{
void DefaultMidiLearner::learn (Take takeToCall)
{
    JUCE_ASSERT_MESSAGE_THREAD

    take = std::move (takeToCall);
    record.arm();
}

void DefaultMidiLearner::cancel()
{
    JUCE_ASSERT_MESSAGE_THREAD

    take = nullptr;
    record.stop();
}

void DefaultMidiLearner::updateFlag()
{
    const auto message = record.getCaptured();

    if (! message.has_value() || ! isLearning())
        return;

    auto waiting = std::exchange (take, nullptr);
    const auto isTaken = waiting (*message);

    if (isLearning()) // the next one, begun by who was told of this one
        return;

    if (isTaken)
        record.stop();
    else
        learn (std::move (waiting));
}
} // namespace Zn::Audio::Plugin
