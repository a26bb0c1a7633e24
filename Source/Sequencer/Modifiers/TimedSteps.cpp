#include "Sequencer/Modifiers/TimedSteps.h"

#include "Sequencer/Modifiers/Limits.h"
#include "Sequencer/Modifiers/RenderedLists.h"

namespace Zn::Sequencer::Modifiers
{
namespace
{
/** Plays the sequences one after another; returns where the last one ends. */
double renderInTurn (const TimedSteps::Sequences& sequences, RenderedEvents& target)
{
    auto position = 0.0;

    for (const auto& sequence : sequences)
    {
        RenderedEvents rendered;
        sequence->render (rendered);

        shift (rendered, position);
        position += rendered.length;
        append (target, std::move (rendered));
    }

    return position;
}
} // namespace

TimedSteps::TimedSteps() : duration { .duration = 4.0, .mode = 0, .time = {} } {}

TimedSteps::TimedSteps (const TimedSteps& other)
    : Base (other)
    , mute (other.mute)
    , solo (other.solo)
    , sequences (copiesOf (other.sequences))
    , duration (other.duration)
    , channel (other.channel)
{}

TimedSteps& TimedSteps::operator= (const TimedSteps& other)
{
    Base::operator= (other);
    mute = other.mute;
    solo = other.solo;
    sequences = copiesOf (other.sequences);
    duration = other.duration;
    channel = other.channel;

    return *this;
}

std::unique_ptr<Base> TimedSteps::clone() const
{
    return std::make_unique<TimedSteps> (*this);
}

void TimedSteps::render (RenderedEvents& target) const
{
    if (! mute)
    {
        target.length = renderInTurn (sequences, target);
        target.start = 0.0;
        sortByStart (target);

        for (auto& note : target.notes)
            note.event.channel = channel;
    }

    if (target.length == 0.0)
    {
        target.start = 0.0;
        target.length = duration.value();
    }
}

void TimedSteps::reflectFields (Reflector& r)
{
    r.addChild ("Sequences", ChildContainerSerializer (sequences, false, maxSequences));
    duration.reflectIn (r);
    r.add ("mute", mute);
    r.add ("solo", solo);

    if (r.isLoading())
        callListeners();
}
} // namespace Zn::Sequencer::Modifiers
