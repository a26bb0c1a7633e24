#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>
#include <cstdint>
#include <functional>

namespace Zn::Tests
{
/** A host's transport that a test writes: a steady song that plays, stops, jumps and loops as told.

    Call `advance` after each block. `edit` has the last word on each answer, for hosts that leave things out
    or talk nonsense.
*/
class TestPlayHead : public juce::AudioPlayHead
{
public:
    explicit TestPlayHead (double songSampleRate = 48000.0, double songTempo = 120.0)
        : sampleRate (songSampleRate), tempo (songTempo)
    {}

    void play() { isPlaying = true; }
    void stop() { isPlaying = false; }
    void setTempo (double bpm) { tempo = bpm; }
    void setLoop (double startPpq, double endPpq) { loop = { startPpq, endPpq }; }

    void jumpTo (double newPpq)
    {
        ppq = newPpq;
        samples = ppq / ppqPerSample();
    }

    /** Moves the song over a block, as a host does: only while it plays, and back by the loop at its end. */
    void advance (int numSamples)
    {
        if (! isPlaying)
            return;

        ppq += numSamples * ppqPerSample();
        samples += numSamples;

        // Sums are not exact: what is a hair before the end has reached it.
        while (loop.ppqEnd > loop.ppqStart && ppq > loop.ppqEnd - ppqPerSample() / 2.0)
        {
            ppq -= loop.ppqEnd - loop.ppqStart;
            samples -= (loop.ppqEnd - loop.ppqStart) / ppqPerSample();
        }
    }

    juce::Optional<PositionInfo> getPosition() const override
    {
        if (! answers)
            return {};

        PositionInfo position;
        position.setIsPlaying (isPlaying);
        position.setBpm (tempo);
        position.setPpqPosition (ppq);
        position.setTimeInSamples (static_cast<std::int64_t> (std::llround (samples)));
        position.setTimeInSeconds (samples / sampleRate);
        position.setTimeSignature (TimeSignature { 4, 4 });

        if (loop.ppqEnd > loop.ppqStart)
        {
            position.setIsLooping (true);
            position.setLoopPoints (loop);
        }

        if (edit != nullptr)
            edit (position);

        return position;
    }

    double ppqPerSample() const { return tempo / (sampleRate * 60.0); }

    bool answers = true; // false: the host has a play head without a position
    std::function<void (PositionInfo&)> edit;

    double sampleRate; // hertz
    double tempo;      // quarter notes a minute
    bool isPlaying = true;
    double ppq = 0.0;     // quarter notes at the next block's start
    double samples = 0.0; // the same in samples
    LoopPoints loop;      // quarter notes; none unless its end is above its start
};
} // namespace Zn::Tests
