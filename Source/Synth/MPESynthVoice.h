#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <atomic>
#include <cstdint>

namespace Zn::Audio
{
/** One voice of an MPESynth: which note it plays, since when, and whether it sounds. Thread: audio. */
class MPESynthVoice : public juce::MPESynthesiserVoice
{
public:
    /** Takes a note. Ages count up: the voice with the smallest has played longest. */
    void start (const juce::MPENote& note, std::uint32_t age) noexcept
    {
        currentlyPlayingNote = note;
        noteOnTime = age;
        noteStarted();
    }

    /** Lets go of its note; without a tail it is silent at once. */
    void stop (bool allowTailOff) noexcept
    {
        currentlyPlayingNote.keyState = juce::MPENote::off;
        noteStopped (allowTailOff);
    }

    void bend (double semitones) noexcept
    {
        currentlyPlayingNote.totalPitchbendInSemitones = semitones;
        notePitchbendChanged();
    }

    /** Whether the last run left it sounding. Thread: any. */
    bool wasActive() const noexcept { return activeAfterRun.load(); }

protected:
    /** To be called at the end of every run. */
    void publishActivity() noexcept { activeAfterRun.exchange (isActive()); }

    void notePressureChanged() override {}
    void noteTimbreChanged() override {}
    void noteKeyStateChanged() override {}

private:
    std::atomic<bool> activeAfterRun { false }; // written: audio, read: any
};
} // namespace Zn::Audio
