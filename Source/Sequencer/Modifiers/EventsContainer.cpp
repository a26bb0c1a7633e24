#include "Sequencer/Modifiers/EventsContainer.h"

#include "Sequencer/Modifiers/BarChange.h"
#include "Sequencer/Modifiers/LaneRepeater.h"
#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>
#include <numeric>

namespace Zn::Sequencer::Modifiers
{
namespace
{
double startOfBar (const Bars& bars, int index)
{
    const auto add = [] (double sum, const Bar& bar) { return sum + bar.length(); };
    return std::accumulate (bars.list.begin(), bars.list.begin() + index, 0.0, add);
}
} // namespace

EventsContainer::EventsContainer()
{
    followLoopTime();
}

EventsContainer::EventsContainer (const EventsContainer& other)
    : Cloneable<Base, EventsContainer> (other)
    , fitLoop (other.fitLoop)
    , lanes (copiesOf (other.lanes))
    , loopTime (other.loopTime)
{
    followLoopTime();
}

EventsContainer& EventsContainer::operator= (const EventsContainer& other)
{
    Cloneable<Base, EventsContainer>::operator= (other);
    fitLoop = other.fitLoop;
    lanes = copiesOf (other.lanes);
    loopTime = other.loopTime;

    return *this;
}

void EventsContainer::render (RenderedEvents& target) const
{
    const auto isSolo = [] (const auto& lane) { return lane->solo; };
    const auto anySolo = std::any_of (lanes.begin(), lanes.end(), isSolo);

    target.start = 0.0;
    target.length = loopTime.length();

    for (const auto& lane : lanes)
        if (isSolo (lane) == anySolo)
            repeatLane (*lane, target.length, target);
}

void EventsContainer::reflectFields (Reflector& r)
{
    r.addChild ("Sequences", ChildContainerSerializer (lanes, false, maxSequences));
    r.addChild ("LoopTime", loopTime);

    if (r.isLoading())
        callListeners();
}

void EventsContainer::followLoopTime()
{
    loopTime.setListener ([this] (int index, Bar oldBar, Bar newBar) { changeBar (index, oldBar, newBar); });
}

void EventsContainer::changeBar (int index, Bar oldBar, Bar newBar)
{
    const auto start = startOfBar (loopTime.getBars(), index);

    for (auto& lane : lanes)
        fitToBar (lane->sequences, { start, oldBar.length() }, oldBar, newBar);

    for (std::size_t i = 0; i < lanes.size(); ++i) // a listener may add or remove lanes
        lanes[i]->callListeners();
}
} // namespace Zn::Sequencer::Modifiers
