#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <cstdint>
#include <span>
#include <vector>

namespace Zn::Audio
{
/** The clock of one block: follows the host's position, or runs by itself, and knows
    where each sample stands.

    What the host leaves out of its position goes on from where the last block ended, so a host that gives no
    quarter notes, no samples or no tempo still hears an even beat. What it gives is checked here and nowhere
    after: a value that is not finite, or too large to count in samples, counts as left out.

    Thread: audio, but for `prepare`.
*/
class InternalPlayHead : public juce::AudioPlayHead
{
public:
    InternalPlayHead();

    /** Sizes the table of positions. The position itself stands. A rate not above 0 stops the motion.
        Thread: prepare.
    */
    void prepare (double newSampleRate, int blockSize);

    /** Moves over a block of `numSamples`, with the host's position at its start or, without a host, from
        where the last block ended. Allocates only for a block longer than any before it.
    */
    void update (juce::AudioPlayHead* host, int numSamples) noexcept;

    /** The tempo from here on, in quarter notes a minute. Ignored unless `isUsableTempo`. */
    void setTempo (double newBpm) noexcept;

    /** What an internal clock takes from its controls ahead of `update (nullptr, ...)`. It knows no loop. */
    void setInternalState (bool isPlaying, double ppq) noexcept;

    /** Makes the next `update` report a jump. */
    void forceJump() noexcept { jumpForced = true; }

    /** The position that the next block is expected to start with; whole, whatever the host left out. */
    juce::Optional<PositionInfo> getPosition() const override { return info; }

    bool isPlaying() const noexcept { return info.getIsPlaying(); }
    bool hasJumped() const noexcept { return jumped; }             // the block does not continue the last one
    bool hasSongJumped() const noexcept { return songJumped; }     // the same, for who reads `getSongPpq`
    bool hasStateChanged() const noexcept { return stateChanged; } // playing differs from the last block
    double getTempo() const noexcept; // quarter notes a minute, 100 if none is known
    double getPpqPerSample() const noexcept { return ppqPerSample; }
    double getStartPpq() const noexcept { return startPpq; } // quarter notes at the block's first sample
    double getEndPpq() const noexcept { return endPpq; }     // quarter notes just past its last
    std::int64_t getTimeInSamples() const noexcept;          // just past the block; 0 if unknown
    std::span<const double> getPpqBySample() const noexcept { return ppqBySample; }

    /** The same as the song goes on behind the end of the host's loop: at the loop's start. A host that does not cut
        its blocks there tells of it with its next block only, which is no jump to who has gone on here.
    */
    std::span<const double> getSongPpq() const noexcept { return songPpq; }

    /** Whether a clock can run at this tempo: finite, at least 1, and not beyond what any music has. */
    static bool isUsableTempo (double bpm) noexcept;

private:
    void follow (const PositionInfo& host) noexcept;
    void updateRate() noexcept;
    bool isAwayFrom (std::int64_t expected) const noexcept;
    bool hasFallenBack() const noexcept;
    void fillPlaying (int numSamples) noexcept;
    void fillSong() noexcept;
    double wrapIntoLoop (double ppq) const noexcept;

    bool jumped = false;
    bool songJumped = false;
    bool stateChanged = false;
    bool wasPlaying = false;
    double startPpq = 0.0, endPpq = 0.0; // quarter notes
    double sampleRate = 0.0;             // hertz
    double ppqPerSample = 0.0;           // quarter notes
    std::int64_t expectedSample = 0;     // where the next block should start
    bool jumpForced = false;
    std::vector<double> ppqBySample; // quarter notes, one a sample of the block
    std::vector<double> songPpq;     // the same of the song

    bool loopsInside = false;          // the song has wrapped inside the block, and then:
    double songEnd = 0.0;              // quarter notes just past the last sample
    std::int64_t loopLength = 0;       // samples that it has fallen back by, in all
    std::int64_t samplesSinceLoop = 0; // from the loop's start to the block's end
    double lastRate = 0.0;             // quarter notes a sample

    PositionInfo info;
    LoopPoints loop; // quarter notes; empty unless the host loops
};
} // namespace Zn::Audio
