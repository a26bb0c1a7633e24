#pragma once

#include "Sequencer/PatternOutput.h"
#include "Sequencer/PlayState.h"
#include "Sequencer/RenderedEvents.h"

#include <limits>
#include <span>
#include <vector>

namespace Zn::Sequencer
{
/** How the first position of a run follows the last one of the run before. */
enum class Arrival
{
    continues, // one sample later
    jumped,    // from elsewhere or from a stop: the transport's jump, or the pattern was anchored anew
    wrapped    // over the pattern's end
};

/** Plays one rendered list, run by run, and sees to it that whatever it starts also ends.

    A note sounds at the sample where the run crosses its start. One that already lasts when a run begins and
    does not sound yet is caught up with at the run's first sample; so a start between the last sample of a run
    and the first of the next sounds one sample late. Going back ends all notes first.
    What the list no longer holds, because it was edited or taken away, ends at the first sample of the next run.

    Hosts begin and jump on whole samples, which may lie a little off the beat. So where a run begins with a
    jump, a note that is less than a sample old starts, whatever has sounded on its row; and one that is over
    within a sample is not caught up with.

    Lists are sorted by start. What is out of order, disabled, or names no row is passed over, and so is a place
    in time that is not a number. Thread: audio.
*/
class EventPlayer
{
public:
    EventPlayer();

    void setSeed (std::int64_t seed) noexcept { random.setSeed (seed); }

    /** How far two samples of the clock are apart, in quarter notes; 0 if unknown. */
    void setSamplePeriod (double period) noexcept { samplePeriod = period; }

    /** Plays one run: positions in the pattern in quarter notes, one for each sample, at least one. */
    void run (const RenderedEvents& events,
              std::span<const double> positions,
              Arrival arrival,
              const PatternOutput& output) noexcept;

    /** True while a run of an empty list would still have something to end. */
    bool isActive() const noexcept { return ! playState.isSilent() || ! shown.empty(); }

    /** Position of the last sample of the last run; not a number before the first. */
    double getEndPosition() const noexcept { return endPosition; }

private:
    struct Run;

    void endAllWhenGoingBack (const Run& run) noexcept;
    void gather (const RenderedEvents& events, const Run& run) noexcept;
    void endBetweenRuns (const Run& run) noexcept;
    void walk (const TimedNote& note, const Run& run) noexcept;
    void play (const TimedNote& note, int sample, const Run& run) noexcept;
    void sweep (const Run& run) noexcept;
    void showPositions (const Run& run) noexcept;

    double lastPosition = 0.0; // of the first sample of the last run
    double samplePeriod = 0.0; // quarter notes
    double endPosition = std::numeric_limits<double>::quiet_NaN();
    PlayState playState;
    juce::Random random;

    // What overlaps the current run. They point into the list and are empty between the runs.
    std::vector<const TimedNote*> notes;
    std::vector<const SequenceMark*> sequences, marks;

    // The emitters that the editor is shown as playing. Their garbage collector holds them too, so that letting
    // go of one here frees nothing.
    std::vector<std::shared_ptr<PlayPosition>> shown;
};
} // namespace Zn::Sequencer
