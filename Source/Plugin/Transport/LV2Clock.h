#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <cstdint>
#include <optional>

namespace Zn::Audio
{
/** What one message of an LV2 host says about its transport. Hosts leave out what they do not know. */
struct LV2Position
{
    std::optional<double> frame {};          // samples from the start of the song
    std::optional<double> speed {};          // 1 plays, 0 stands
    std::optional<double> bar {};            // from 0
    std::optional<double> barBeat {};        // beats from the bar's start
    std::optional<double> beat {};           // beats from the start of the song, whole beats with some hosts
    std::optional<double> beatsPerBar {};    // upper number of the time signature
    std::optional<double> beatUnit {};       // lower number of the time signature
    std::optional<double> beatsPerMinute {}; // hosts send quarter notes, whatever the beat unit
};

/** A time signature. */
struct LV2Meter
{
    double beatsPerBar = 4.0; // upper number
    int beatUnit = 4;         // lower number

    double ppqPerBeat() const noexcept { return 4.0 / beatUnit; }
    double ppqPerBar() const noexcept { return beatsPerBar * ppqPerBeat(); }
    bool operator== (const LV2Meter&) const = default;
};

/** Keeps an LV2 host's transport going between its messages, as hosts send one only when something changes.

    Give it the messages of a block, read the position, then move over the block. The position counts from the
    last message, so nothing adds up over a long song. Thread: audio, but for `prepare`.
*/
class LV2Clock
{
public:
    /** Forgets all messages. Thread: prepare. */
    void prepare (double newSampleRate) noexcept;

    /** Takes in a message that holds from `offset` samples into the coming block. The block then starts where
        that message puts its start: the last message rules the whole block.
    */
    void receive (const LV2Position& message, int offset) noexcept;

    void advance (int numSamples) noexcept;

    /** The transport at the block's first sample; nothing until the host has sent a message. */
    juce::Optional<juce::AudioPlayHead::PositionInfo> getPosition() const noexcept;

private:
    bool isMoving() const noexcept { return speed > 0.0; } // patterns are not played backwards
    std::optional<double> getTempo() const noexcept;
    double getPpqPerSample() const noexcept;
    std::optional<double> getFrame() const noexcept;
    std::optional<double> getPpq() const noexcept;
    double startOfBar (double bar) const noexcept;
    double barStartBefore (double ppq) const noexcept;
    void takeOverRates (const LV2Position& message) noexcept;
    void noteMeterChange (const LV2Position& message, const LV2Meter& meterBefore, double ppq) noexcept;

    double sampleRate = 44100.0; // hertz
    bool hasMessage = false;
    double speed = 0.0;
    std::optional<double> tempo; // quarter notes a minute, at speed 1
    LV2Meter meter;
    bool hasTimeSignature = false;

    /** A bar from which the song has a time signature. The bars before it may have any lengths. */
    struct MeterChange
    {
        LV2Meter meter;
        double bar = 0.0, ppq = 0.0; // where it begins: from 0, in quarter notes
    };

    MeterChange meterChange; // the last that was played through

    // Where the last message put the song, and the samples since then. The message may come later in the
    // block: then they are negative.
    std::optional<double> anchorFrame; // samples
    std::optional<double> anchorPpq;   // quarter notes
    std::optional<double> barStartPpq; // quarter notes; of some bar, the others follow at their length
    std::int64_t samplesSince = 0;
};
} // namespace Zn::Audio
