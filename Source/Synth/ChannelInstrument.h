#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <array>

namespace Zn::Audio
{
/** Follows the keys and the pitch wheel of MIDI channel 1, on which everything arrives: what juce::MPEInstrument does
    for one channel, without its locks and its list that grows and shrinks while it plays.

    The wheel is remembered between notes, until it moves or all controllers are reset. Thread: audio.
*/
class ChannelInstrument
{
public:
    static constexpr double bendRangeSemitones = 2.0; // up and down

    /** Who starts and ends the sound. */
    struct Listener
    {
        virtual ~Listener() = default;
        virtual void noteAdded (const juce::MPENote& note) noexcept = 0;
        virtual void noteReleased (const juce::MPENote& note) noexcept = 0;
        virtual void pitchBendChanged (double semitones) noexcept = 0;
        virtual void soundOff() noexcept = 0;
    };

    explicit ChannelInstrument (Listener& listenerToTell) noexcept : listener (listenerToTell) {}

    /** True for a message that changes what sounds. */
    static bool concerns (const juce::MidiMessageMetadata& event) noexcept;

    /** A key that is struck again is released first. */
    void process (const juce::MidiMessageMetadata& event) noexcept;

    /** Learns where the wheel is, while nothing may sound, without telling. */
    void followWheel (const juce::MidiMessageMetadata& event) noexcept;

    /** Forgets all keys without telling. */
    void reset() noexcept;

private:
    void noteOn (int key, int velocity) noexcept;
    void noteOff (int key) noexcept;
    double bendSemitones() const noexcept { return double (bend.asSignedFloat()) * bendRangeSemitones; }

    Listener& listener;
    std::array<juce::MPENote, 128> notes; // valid where a key is down
    juce::MPEValue bend = juce::MPEValue::centreValue();
};
} // namespace Zn::Audio
