#include "InputPlayer.h"

#include <algorithm>

namespace Zn::Render
{
namespace
{
EventStream skipTo (EventStream events, double quarters)
{
    while (events.peek() != nullptr && events.peek()->quarters < quarters)
        events.pop();

    return events;
}
} // namespace

InputPlayer::InputPlayer (const MidiFileSource& source, const SongTimeline& timelineToUse)
    : timeline (timelineToUse)
    , events (source.getEvents())
    , eventsAtLoopStart (timeline.getLoop() ? skipTo (events, timeline.getLoop()->startQuarters) : events)
    , endSample (timeline.getLengthSamples())
{}

void InputPlayer::addEvents (juce::MidiBuffer& buffer, std::int64_t firstSample, int numSamples)
{
    while (! finished)
    {
        const auto step = findNextStep();

        if (step.sample >= firstSample + numSamples)
            return;

        const auto sample = static_cast<int> (std::max<std::int64_t> (0, step.sample - firstSample));

        if (step.event != nullptr)
        {
            play (*step.event, buffer, sample);
            events.pop();
            continue;
        }

        held.releaseAll (buffer, sample);
        finished = step.sample >= endSample;
        startNextPass();
    }
}

InputPlayer::Step InputPlayer::findNextStep() const
{
    const auto end = endOfPass();
    const auto* event = events.peek();

    if (event == nullptr)
        return end;

    const auto sample = timeline.sampleAt (pass, event->quarters);
    const auto playsAtEnd = ! timeline.getLoop(); // what stands on the loop's end is beyond it
    return sample < end.sample || playsAtEnd ? Step { sample, event } : end;
}

InputPlayer::Step InputPlayer::endOfPass() const
{
    if (! timeline.getLoop())
        return { endSample };

    return { std::min (endSample, timeline.sampleAt (pass, timeline.getLoop()->endQuarters)) };
}

void InputPlayer::play (const SongEvent& event, juce::MidiBuffer& buffer, int sample)
{
    message.assign (1, event.status);
    message.insert (message.end(), event.data.begin(), event.data.end());
    buffer.addEvent (message.data(), static_cast<int> (message.size()), sample);
    held.apply (event.status, event.data);
}

void InputPlayer::startNextPass()
{
    events = eventsAtLoopStart;
    ++pass;
}
} // namespace Zn::Render
