#include "Synth/WavetableSynth/Voice.h"

#include "Synth/Kernels/Pan.h"

namespace Zn::Audio::WavetableSynth
{
using Kernels::Stereo;

namespace
{
constexpr double glideSeconds = 0.02; // of a place or a gain
constexpr int filterStages = 2;       // 24 dB an octave
constexpr float subCeiling = 0.1f;    // the sine lies under the oscillators

std::span<Stereo> firstFrames (std::array<Stereo, Voice::longestRun>& frames, std::size_t count) noexcept
{
    return std::span (frames).first (count);
}
} // namespace

void Voice::use (const VoiceSettings& settingsToFollow, const Kernels::VoiceKernels& kernelsToCall) noexcept
{
    settings = &settingsToFollow;
    kernels = &kernelsToCall;
    setEnvelopeRates (settingsToFollow.envelope);
}

void Voice::prepare (double sampleRate) noexcept
{
    if (isActive())
        stop (false);

    setCurrentSampleRate (sampleRate);
    filterState = {};
    subGain.reset (sampleRate, glideSeconds);

    for (auto& oscillator : oscillators)
        for (auto& voice : oscillator.voices)
            voice.pan.reset (sampleRate, glideSeconds);
}

void Voice::renderGroup (std::span<Voice* const> voices,
                         Scratch& scratch,
                         std::span<float> left,
                         std::span<float> right) noexcept
{
    std::array<Kernels::FilteredVoice, largestGroup> filtered;
    std::size_t numFiltered = 0;

    for (std::size_t i = 0; i < voices.size(); ++i)
    {
        auto& voice = *voices[i];
        const auto frames = firstFrames (scratch.frames[i], left.size());
        std::ranges::fill (frames, Stereo {});

        voice.addOscillators (frames, scratch);
        voice.addSub (frames, scratch);

        if (voice.settings->filter.enabled)
        {
            voice.updateFilter();
            filtered[numFiltered++] = { frames, voice.filterCoefficients, &voice.filterState };
        }
    }

    if (numFiltered > 0)
        voices.front()->kernels->filterVoices (std::span (filtered).first (numFiltered),
                                               Kernels::FilterType::lowPass,
                                               filterStages);

    for (std::size_t i = 0; i < voices.size(); ++i)
        voices[i]->finish (firstFrames (scratch.frames[i], left.size()), scratch, left, right);
}

void Voice::renderNextBlock (juce::AudioBuffer<float>& audio, int start, int count)
{
    Scratch scratch;
    Voice* const alone = this;

    for (auto end = start + count; start < end;)
    {
        const auto length = static_cast<std::size_t> (std::min (end - start, longestRun));
        renderGroup ({ &alone, 1 },
                     scratch,
                     { audio.getWritePointer (0, start), length },
                     { audio.getWritePointer (1, start), length });
        start += static_cast<int> (length);
    }
}

void Voice::onNoteStart() noexcept
{
    const auto& note = getCurrentlyPlayingNote();

    filterState = {};
    velocityGain = Kernels::velocityGain (note.noteOnVelocity.as14BitInt());
    notePitchbendChanged();

    for (std::size_t i = 0; i < oscillators.size(); ++i)
    {
        auto& oscillator = oscillators[i];
        tune (oscillator, settings->oscillators[i]);

        for (std::size_t v = 0; v < oscillator.voices.size(); ++v)
        {
            oscillator.voices[v].phase = 0.0;
            oscillator.voices[v].pan.jumpTo (oscillator.pitches[v].pan);
        }
    }

    subPhase = 0.0;
    subGain.jumpTo (settings->sub.volume * subCeiling);
}

void Voice::notePitchbendChanged()
{
    const auto& note = getCurrentlyPlayingNote();
    noteFrequencyHz = Kernels::noteFrequencyHz (note.initialNote, note.totalPitchbendInSemitones);
}

void Voice::tune (Oscillator& oscillator, const OscillatorSettings& wanted) noexcept
{
    const Kernels::OscillatorTuning tuning { noteFrequencyHz,
                                             wanted.octave,
                                             wanted.tune,
                                             wanted.unison,
                                             wanted.spread };

    if (tuning == oscillator.tuning)
        return;

    oscillator.tuning = tuning;
    oscillator.pitches = Kernels::unisonPitches (tuning);
}

void Voice::addOscillators (std::span<Stereo> frames, Scratch& scratch) noexcept
{
    for (std::size_t i = 0; i < oscillators.size(); ++i)
    {
        auto& oscillator = oscillators[i];
        const auto& wanted = settings->oscillators[i];

        if (! wanted.enabled)
            continue;

        tune (oscillator, wanted);

        for (std::size_t v = 0; v < static_cast<std::size_t> (wanted.unison); ++v)
            addUnisonVoice (oscillator.voices[v], oscillator.pitches[v], wanted, frames, scratch);
    }
}

void Voice::addUnisonVoice (UnisonVoice& voice,
                            const Kernels::UnisonVoicePitch& pitch,
                            const OscillatorSettings& wanted,
                            std::span<Stereo> frames,
                            Scratch& scratch) noexcept
{
    const auto gain = pitch.gain * std::max (wanted.volume, 0.0f);
    Kernels::TableRead read { wanted.table, voice.phase, pitch.frequencyHz / settings->sampleRate, {} };

    voice.pan.setTarget (pitch.pan);

    if (voice.pan.isRamping())
    {
        const auto gains = firstFrames (scratch.gains, frames.size());
        Kernels::fillPanGains (voice.pan, gain, gains);
        kernels->addTable (read, gains, frames);
    }
    else
    {
        const auto sides = Kernels::panGains (pitch.pan);
        read.gain = { sides.left * gain, sides.right * gain };
        kernels->addTable (read, frames);
    }

    voice.phase = read.phase;
}

void Voice::addSub (std::span<Stereo> frames, Scratch& scratch) noexcept
{
    const auto& wanted = settings->sub;
    const auto frequencyHz = Kernels::subFrequencyHz (noteFrequencyHz, wanted.octave);
    Kernels::TableRead read { wanted.table, subPhase, frequencyHz / settings->sampleRate, {} };

    subGain.setTarget (wanted.volume * subCeiling);

    if (subGain.isRamping())
    {
        const auto gains = firstFrames (scratch.gains, frames.size());
        Kernels::fillGains (subGain, gains);
        kernels->addTable (read, gains, frames);
    }
    else
    {
        read.gain = { subGain.current, subGain.current };
        kernels->addTable (read, frames);
    }

    subPhase = read.phase;
}

void Voice::updateFilter() noexcept
{
    const auto& filter = settings->filter;
    const auto cutoffHz = filter.keyTracking * noteFrequencyHz + filter.cutoffHz;
    const auto resonance = filter.resonance;

    if (cutoffHz == lastCutoffHz && resonance == lastResonance && settings->sampleRate == lastSampleRate)
        return;

    lastCutoffHz = cutoffHz;
    lastResonance = resonance;
    lastSampleRate = settings->sampleRate;
    filterCoefficients =
        Kernels::makeFilterCoefficients (double (cutoffHz), double (resonance), settings->sampleRate);
}

void Voice::finish (std::span<const Stereo> frames,
                    Scratch& scratch,
                    std::span<float> left,
                    std::span<float> right) noexcept
{
    const auto levels = std::span (scratch.levels).first (frames.size());
    runEnvelope (levels);
    kernels->mixVoice (frames, levels, velocityGain, left, right);
}
} // namespace Zn::Audio::WavetableSynth
