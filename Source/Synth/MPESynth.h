#pragma once

#include "Synth/ChannelInstrument.h"
#include "Synth/VoiceStealer.h"

#include <algorithm>
#include <array>
#include <span>

namespace Zn::Audio
{
/** A pool of voices that plays MIDI: cuts a block where a note starts, ends or bends, so that each does at its own
    sample, and renders what sounds in between.

    VoiceType is an MPESynthVoice with a Scratch to work in, a largest group and run, and
    `renderGroup (std::span<VoiceType* const>, Scratch&, std::span<float> left, std::span<float> right)`, which adds
    some voices to a run. Thread: audio, but for the constructor.
*/
template <typename VoiceType, typename Stealer = DefaultVoiceStealer>
class MPESynth : private ChannelInstrument::Listener
{
public:
    static constexpr int numVoices = 32;

    MPESynth() = default;

    MPESynth (const MPESynth&) = delete;
    MPESynth& operator= (const MPESynth&) = delete;

    /** Replaces the first two channels of a block by what its MIDI sounds like. */
    void render (juce::AudioBuffer<float>& audio, const juce::MidiBuffer& midi) noexcept
    {
        audio.clear();
        auto position = 0;

        for (const auto event : midi)
        {
            if (! ChannelInstrument::concerns (event))
                continue;

            const auto sample = std::clamp (event.samplePosition, position, audio.getNumSamples());
            renderRun (audio, position, sample);
            instrument.process (event);
            position = sample;
        }

        renderRun (audio, position, audio.getNumSamples());
    }

    bool isAnyVoiceActive() const noexcept
    {
        return std::ranges::any_of (voices, [] (const VoiceType& voice) { return voice.isActive(); });
    }

    /** Takes nothing from a block but the wheel, so that the next note is in tune. */
    void followWheel (const juce::MidiBuffer& midi) noexcept
    {
        for (const auto event : midi)
            instrument.followWheel (event);
    }

    /** Silences everything at once and forgets all keys. */
    void stopAll() noexcept
    {
        instrument.reset();
        soundOff();
    }

protected:
    std::array<VoiceType, numVoices> voices;

private:
    void noteAdded (const juce::MPENote& note) noexcept override
    {
        claimVoice (note).start (note, nextAge++);
    }

    void noteReleased (const juce::MPENote& note) noexcept override
    {
        for (auto& voice : voices)
            if (voice.isActive() && ! voice.isPlayingButReleased() && voice.isCurrentlyPlayingNote (note))
                voice.stop (true);
    }

    void pitchBendChanged (double semitones) noexcept override
    {
        for (auto& voice : voices)
            if (voice.isActive() && ! voice.isPlayingButReleased())
                voice.bend (semitones);
    }

    void soundOff() noexcept override
    {
        for (auto& voice : voices)
            if (voice.isActive())
                voice.stop (false);
    }

    /** A free voice, or one that is cut off for the note, so that the note starts with a fresh envelope. */
    VoiceType& claimVoice (const juce::MPENote& note) noexcept
    {
        const auto free =
            std::ranges::find_if (voices, [] (const VoiceType& voice) { return ! voice.isActive(); });

        if (free != voices.end())
            return *free;

        std::array<VoiceType*, numVoices> oldestFirst;
        std::ranges::transform (voices, oldestFirst.begin(), [] (VoiceType& voice) { return &voice; });
        std::ranges::sort (oldestFirst, {}, [] (const VoiceType* voice) { return voice->noteOnTime; });

        std::array<StealCandidate, numVoices> candidates;
        std::ranges::transform (oldestFirst, candidates.begin(), [] (const VoiceType* voice) {
            const auto isReleased = voice->isPlayingButReleased();
            return StealCandidate { voice->getCurrentlyPlayingNote().initialNote, isReleased, ! isReleased };
        });

        auto& stolen =
            *oldestFirst[static_cast<std::size_t> (Stealer::choose (candidates, note.initialNote))];
        stolen.stop (false);
        return stolen;
    }

    void renderRun (juce::AudioBuffer<float>& audio, int start, int end) noexcept
    {
        while (start < end)
        {
            const auto length = std::min (end - start, VoiceType::longestRun);
            renderPiece ({ audio.getWritePointer (0, start), static_cast<std::size_t> (length) },
                         { audio.getWritePointer (1, start), static_cast<std::size_t> (length) });
            start += length;
        }
    }

    void renderPiece (std::span<float> left, std::span<float> right) noexcept
    {
        std::array<VoiceType*, VoiceType::largestGroup> group;
        std::size_t size = 0;

        const auto renderGroup = [&] {
            if (size > 0)
                VoiceType::renderGroup (std::span (group).first (std::exchange (size, 0)),
                                        scratch,
                                        left,
                                        right);
        };

        for (auto& voice : voices)
        {
            if (! voice.isActive())
                continue;

            group[size++] = &voice;

            if (size == group.size())
                renderGroup();
        }

        renderGroup();
    }

    ChannelInstrument instrument { *this };
    typename VoiceType::Scratch scratch;
    std::uint32_t nextAge = 0;
};
} // namespace Zn::Audio
