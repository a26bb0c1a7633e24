#pragma once

#include "Sequencer/ClockSlice.h"
#include "Sequencer/EventPlayer.h"
#include "Sequencer/PatternData.h"

namespace Zn::Sequencer
{
/** What plays where there is no pattern, or where it must not be heard: it only ends what still sounds. */
inline const RenderedSlot fallback { .playing = false, .looping = false, .playLength = 0.0, .events = {} };

/** Plays one of the eight patterns against the clock: repeats it, and knows where on the clock it begins.

    A looping pattern is played pass by pass: where its position falls back, a new run begins in the middle of
    the block. So it does where the song goes back, as in a loop of the host's; from there on the pattern counts
    from the start of the song. Before its anchor a pattern plays nothing. It outlives the frames of pattern data,
    so a new frame never cuts a note. Thread: audio.
*/
class SlotPlayer
{
public:
    /** Reserves for a block size. Thread: prepare. */
    void prepare (int blockSize);

    void setSeed (std::int64_t seed) noexcept { player.setSeed (seed); }

    /** Makes a clock position, in quarter notes, count as the pattern's first, from the next run on. */
    void anchorAt (double ppq) noexcept;

    /** Counts positions from the start of the song again, as after a jump of the transport. */
    void resetAnchor() noexcept { anchor = 0.0; }

    /** Plays the slot over a slice of the clock; silence while the transport or the slot does not play, and for
        a loop without a usable length. An empty slice changes nothing.
    */
    void run (const ClockSlice& clock, const RenderedSlot& slot, juce::MidiBuffer& rows, int offset) noexcept;

    /** True while a run of silence would still have something to end. */
    bool isActive() const noexcept { return player.isActive(); }

    /** The marks passed by the last run, in the order of their samples. */
    std::span<const FiredMark> getFiredMarks() const noexcept { return firedMarks.get(); }

    double getAnchor() const noexcept { return anchor; }

private:
    enum class Mode
    {
        normal = 0,
        anchorAgain = 2 // at the beginning of the next run
    };

    Arrival arrive (const ClockSlice& clock) noexcept;
    void runPass (const RenderedSlot& slot,
                  std::span<const double> ppq,
                  Arrival arrival,
                  const PatternOutput& output) noexcept;
    void runLoop (const RenderedSlot& slot, Arrival arrival, const PatternOutput& output) noexcept;

    Mode mode = Mode::normal;
    double pendingAnchor = 0.0, anchor = 0.0; // quarter notes on the clock
    double lastPpq = 0.0;                     // quarter notes on the clock, where the last run ended
    double playedLength = 0.0;                // quarter notes of the loop that was played last
    std::vector<double> positions;            // quarter notes in the pattern, one for each sample of the run
    FiredMarks firedMarks;
    EventPlayer player;
};
} // namespace Zn::Sequencer
