#include "Sequencer/EventPlayer.h"

#include "Sequencer/CrossingSample.h"

#include <algorithm>
#include <cmath>

namespace Zn::Sequencer
{
namespace
{
constexpr std::size_t maxNotes = 4096, maxMarks = 256; // overlapping one run; more are passed over
constexpr double markWindow = 0.001;              // quarter notes from a mark's start in which it is passed
constexpr int lastFlushedRow = Cell::numRows - 2; // going back leaves the highest row to the sweep

// Clocks round their positions to 2^-30 of a quarter note. What lies before a sample by less than two of these stands
// on it.
constexpr double clockRounding = 1.0 / (1 << 29); // quarter notes

constexpr float softest = 0.01f; // velocities below still sound, at the lowest byte

Cell cellOf (const NoteEvent& event) noexcept
{
    return { std::clamp (event.channel, 0, Cell::numChannels - 1), event.noteNum };
}

bool isPlayable (const TimedNote& note) noexcept
{
    return note.enabled && note.event.noteNum >= 0 && note.event.noteNum < Cell::numRows;
}

bool isPlayable (const SequenceMark& mark) noexcept
{
    return mark.enabled && mark.emitter != nullptr;
}

/** What a draw adds to a velocity. Two equal ends are no spread at all. */
float spreadOf (const NoteEvent& event, float draw) noexcept
{
    const auto width = event.spreadHigh - event.spreadLow;
    return event.spreadLow == event.spreadHigh ? 0.0f : width * draw + event.spreadLow;
}

int velocityByte (float velocity) noexcept
{
    const auto isLoudEnough = velocity >= softest; // false for what is no number, too

    return isLoudEnough ? std::clamp (juce::roundToInt (std::min (velocity, 1.0f) * 127.0f), 1, 127) : 1;
}
} // namespace

struct EventPlayer::Run
{
    std::span<const double> positions;
    Arrival arrival;
    const PatternOutput& output;
    double previousEnd;  // position of the last sample before this run
    double samplePeriod; // from one sample of the clock to the next
    double first = positions.front();
    double last = std::max (first, positions.back());
    bool isRising = std::is_sorted (positions.begin(), positions.end());

    bool overlaps (const Ranges::Span& time) const noexcept
    {
        return first < time.end() && time.start < last;
    }
    bool startsInside (const Ranges::Span& time) const noexcept
    {
        return first <= time.start && time.start < last;
    }

    /** True for a start that no run holds, since it lies between two samples of which one ended a run, or was
        left out by a jump.
    */
    bool startsBefore (const Ranges::Span& time) const noexcept
    {
        const auto isSinceLastSample =
            arrival == Arrival::jumped ? first - samplePeriod < time.start : previousEnd <= time.start;

        return arrival != Arrival::wrapped && isSinceLastSample && time.start < first;
    }

    /** True for a note of which a jump leaves less than a sample. */
    bool isNearlyOver (const Ranges::Span& time) const noexcept
    {
        return arrival == Arrival::jumped && time.start < first && time.end() < first + samplePeriod;
    }

    int sampleOf (double position) const noexcept
    {
        const auto sample =
            isRising ? crossingSampleOfRising (positions, position) : crossingSample (positions, position);
        const auto next = static_cast<std::size_t> (sample) + 1;

        return next < positions.size() && positions[next] > position
                       && positions[next] - position < clockRounding
                   ? sample + 1
                   : sample;
    }

    /** Collects the pointers to what overlaps the run; the list is sorted, so what follows
        it need not be looked at.
    */
    template <typename Element>
    void gather (const std::vector<Element>& list, std::vector<const Element*>& candidates) const noexcept
    {
        for (const auto& element : list)
        {
            if (element.time.start >= last || candidates.size() == candidates.capacity())
                return;

            const auto isInOrder = candidates.empty() || candidates.back()->time.start <= element.time.start;

            if (overlaps (element.time) && isInOrder && isPlayable (element))
                candidates.push_back (&element);
        }
    }
};

EventPlayer::EventPlayer()
{
    notes.reserve (maxNotes);
    sequences.reserve (maxMarks);
    marks.reserve (maxMarks);
    shown.reserve (maxMarks);
}

void EventPlayer::run (const RenderedEvents& events,
                       std::span<const double> positions,
                       Arrival arrival,
                       const PatternOutput& output) noexcept
{
    const Run run { positions, arrival, output, endPosition, samplePeriod };

    endAllWhenGoingBack (run);
    gather (events, run);
    endBetweenRuns (run);

    for (const auto* note : notes)
        walk (*note, run);

    sweep (run);
    showPositions (run);

    notes.clear();
    sequences.clear();
    marks.clear();
    lastPosition = run.first;
    endPosition = positions.back();
}

void EventPlayer::endAllWhenGoingBack (const Run& run) noexcept
{
    // A clock that only jitters may fall back inside the last run without cutting a note.
    const auto before = run.arrival == Arrival::jumped ? endPosition : lastPosition;
    const auto wentBack = run.first < before || run.arrival == Arrival::wrapped;

    if (! wentBack || playState.isSilent())
        return;

    const auto sounding = playState.getSounding();

    sounding.forEach ([&] (Cell cell) {
        if (cell.row > lastFlushedRow)
            return;

        run.output.noteOff (cell, 0);
        playState.end (cell);
    });
}

void EventPlayer::gather (const RenderedEvents& events, const Run& run) noexcept
{
    run.gather (events.notes, notes);
    run.gather (events.sequences, sequences);
    run.gather (events.marks, marks);
}

/** Ends each note that no element holds at the run's beginning although one claims its cell later in the run:
    left to that one, the note would be stretched to where it starts.
*/
void EventPlayer::endBetweenRuns (const Run& run) noexcept
{
    if (playState.isSilent())
        return;

    CellSet wanted, held;

    for (const auto* note : notes)
    {
        wanted.add (cellOf (note->event));

        if (note->time.start <= run.first)
            held.add (cellOf (note->event));
    }

    playState.getSounding().sharedWith (wanted).without (held).forEach ([&] (Cell cell) {
        run.output.noteOff (cell, 0);
        playState.end (cell);
    });
}

void EventPlayer::walk (const TimedNote& note, const Run& run) noexcept
{
    const auto cell = cellOf (note.event);

    if (run.startsInside (note.time))
        play (note, run.sampleOf (note.time.start), run);
    else if (run.startsBefore (note.time))
        play (note, 0, run);
    else if (playState.isSounding (cell))
        playState.claim (cell);
    else if (! run.isNearlyOver (note.time))
        play (note, 0, run);
    else
        return;

    if (const auto end = note.time.end(); end < run.last)
    {
        run.output.noteOff (cell, run.sampleOf (end));
        playState.end (cell);
    }
}

/** Draws twice for a step that sounds, once for a silent one. */
void EventPlayer::play (const TimedNote& note, int sample, const Run& run) noexcept
{
    const auto& event = note.event;
    const auto cell = cellOf (event);

    if (playState.isSounding (cell))
        run.output.noteOff (cell, sample); // a repeated row starts again, it does not overlap

    playState.claim (cell);

    const auto draw = std::min (random.nextFloat(), 0.9999999f); // so that a chance of 1 always sounds

    if (! (event.chance > 0.0f && draw <= event.chance))
        return;

    const auto velocity = event.velocity + spreadOf (event, random.nextFloat());
    run.output.noteOn (cell, velocityByte (velocity), sample);
}

void EventPlayer::sweep (const Run& run) noexcept
{
    if (! playState.isSilent())
        playState.sweep().forEach ([&run] (Cell cell) { run.output.noteOff (cell, 0); });
}

void EventPlayer::showPositions (const Run& run) noexcept
{
    for (const auto* mark : marks)
        if (run.overlaps ({ mark->time.start, markWindow }) && ! mark->emitter->fired.exchange (true))
            run.output.markFired (*mark->emitter,
                                  run.sampleOf (std::max (mark->time.start, run.first)),
                                  mark->time.start);

    for (const auto& emitter : shown)
        if (std::none_of (sequences.begin(), sequences.end(), [&emitter] (const SequenceMark* mark) {
                return mark->emitter == emitter;
            }))
            emitter->position.store (-1.0);

    shown.clear();

    for (const auto* mark : sequences)
    {
        mark->emitter->position.store (run.positions.back() - mark->time.start);
        shown.push_back (mark->emitter);
    }
}
} // namespace Zn::Sequencer
