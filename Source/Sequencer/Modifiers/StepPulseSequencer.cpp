#include "Sequencer/Modifiers/StepPulseSequencer.h"

#include "Sequencer/Modifiers/Limits.h"

#include <algorithm>

namespace Zn::Sequencer::Modifiers
{
namespace
{
constexpr Bar firstBar { 2, 4 };

TimedNote placed (const TimedNote& step, double patternLength)
{
    auto note = step;
    note.time = { step.time.start * patternLength, step.time.length * patternLength };
    return note;
}
} // namespace

StepPulseSequencer::StepPulseSequencer()
    : duration { .duration = 1.0, .mode = 1, .time = MusicalTime (firstBar) }
{
    layOut (1);
}

void StepPulseSequencer::layOut (int numSteps)
{
    steps.resize (static_cast<std::size_t> (std::clamp (numSteps, 0, maxNotes)));

    const auto width = 1.0 / static_cast<double> (steps.size());
    auto start = 0.0;

    for (auto& step : steps)
    {
        step.time = { start, gate * width };
        start += width;
    }
}

std::unique_ptr<Base> StepPulseSequencer::clone() const
{
    return std::make_unique<StepPulseSequencer> (*this);
}

void StepPulseSequencer::render (RenderedEvents& target) const
{
    target.start = 0.0;
    target.length = duration.value();

    if (steps.empty())
        return;

    for (const auto& step : steps)
        if (step.enabled)
            target.notes.push_back (placed (step, target.length));

    emitter.mark (target, target.length);
}

void StepPulseSequencer::reflectFields (Reflector& r)
{
    duration.reflectIn (r);
    r.add ("length", gate);
    r.addChild ("Steps", ChildContainerSerializer (steps, false, maxNotes));
    r.add ("grid", grid);

    if (r.isLoading())
    {
        grid = std::clamp (grid, 1, maxGrid);
        callListeners();
    }
}
} // namespace Zn::Sequencer::Modifiers
