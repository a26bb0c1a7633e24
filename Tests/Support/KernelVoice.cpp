#include "Support/KernelVoice.h"

#include <algorithm>

namespace Zn::Test
{
using namespace Audio::Kernels;

KernelTable::KernelTable (const LiteralTable& table)
    : numFrames (static_cast<int> (table.front().size())), numChannels (static_cast<int> (table.size()))
{
    for (auto frame = -TableView::guardFramesAhead; frame < numFrames + TableView::guardFramesBehind; ++frame)
        for (const auto& channel : table)
            samples.push_back (channel[static_cast<size_t> (std::clamp (frame, 0, numFrames - 1))]);
}

TableView KernelTable::view() const
{
    return { samples.data() + TableView::guardFramesAhead * numChannels, numFrames, numChannels };
}

KernelVoice::KernelVoice (const VoiceKernels& kernelsToUse,
                          const Tables& tables,
                          double sampleRate,
                          int blockSize)
    : kernels (kernelsToUse)
    , rate (sampleRate)
    , frames (static_cast<size_t> (blockSize))
    , gains (static_cast<size_t> (blockSize))
    , levels (static_cast<size_t> (blockSize))
{
    constexpr auto rampSeconds = 0.02;
    subVolume.reset (rate, rampSeconds);
    sub.table = tables.back();

    for (size_t i = 0; i < oscillators.size(); ++i)
        for (auto& voice : oscillators[i].voices)
        {
            voice.pan.reset (rate, rampSeconds);
            voice.read.table = tables[i];
        }
}

void KernelVoice::noteStarted (const VoiceSettings& settings,
                               int note,
                               int velocity14Bit,
                               double bendSemitones)
{
    filterState = {};
    noteFrequency = noteFrequencyHz (note, bendSemitones);
    velocity = velocityGain (velocity14Bit);
    subVolume.jumpTo (settings.subVolume * 0.1f);
    sub.phase = 0.0;
    sub.increment = subFrequencyHz (noteFrequency, subOctave = settings.subOctave) / rate;
    startNote (envelope, ratesOf (settings));

    for (size_t i = 0; i < oscillators.size(); ++i)
    {
        tune (oscillators[i], settings.oscillators[i]);

        for (size_t v = 0; v < 2; ++v)
        {
            oscillators[i].voices[v].read.phase = 0.0;
            oscillators[i].voices[v].pan.jumpTo (oscillators[i].pitches[v].pan);
        }
    }
}

void KernelVoice::noteStopped (const VoiceSettings& settings)
{
    stopNote (envelope, ratesOf (settings));
}

void KernelVoice::tune (Oscillator& oscillator, const VoiceSettings::Oscillator& settings) const
{
    const OscillatorTuning tuning { noteFrequency,
                                    settings.octave,
                                    settings.tune,
                                    settings.unison,
                                    settings.spread };

    if (tuning == oscillator.tuning)
        return;

    oscillator.tuning = tuning;
    oscillator.pitches = unisonPitches (tuning);

    for (size_t v = 0; v < 2; ++v)
        oscillator.voices[v].read.increment = oscillator.pitches[v].frequencyHz / rate;
}

void KernelVoice::renderOscillators (const VoiceSettings& settings, int numFrames)
{
    const auto sound = std::span (frames).first (static_cast<size_t> (numFrames));
    std::fill (sound.begin(), sound.end(), Stereo {});

    for (size_t i = 0; i < oscillators.size(); ++i)
        if (settings.oscillators[i].enabled)
            renderOscillator (oscillators[i], settings.oscillators[i], sound);

    renderSub (settings, sound);
}

void KernelVoice::renderOscillator (Oscillator& oscillator,
                                    const VoiceSettings::Oscillator& settings,
                                    std::span<Stereo> sound)
{
    tune (oscillator, settings);

    for (size_t v = 0; v < static_cast<size_t> (settings.unison); ++v)
    {
        auto& [read, pan, placeGains, place] = oscillator.voices[v];
        const auto gain = oscillator.pitches[v].gain * std::max (settings.volume, 0.0f);
        pan.setTarget (oscillator.pitches[v].pan);

        if (pan.isRamping())
        {
            const auto ramp = std::span (gains).first (sound.size());
            fillPanGains (pan, gain, ramp);
            kernels.addTable (read, ramp, sound);
            continue;
        }

        if (place != pan.target) // NOLINT: has it changed
        {
            place = pan.target;
            placeGains = panGains (place);
        }

        read.gain = { gain * placeGains.left, gain * placeGains.right };
        kernels.addTable (read, sound);
    }
}

void KernelVoice::renderSub (const VoiceSettings& settings, std::span<Stereo> sound)
{
    subVolume.setTarget (settings.subVolume * 0.1f);

    if (subOctave != settings.subOctave)
        sub.increment = subFrequencyHz (noteFrequency, subOctave = settings.subOctave) / rate;

    if (subVolume.isRamping())
    {
        const auto ramp = std::span (gains).first (sound.size());
        fillGains (subVolume, ramp);
        kernels.addTable (sub, ramp, sound);
        return;
    }

    sub.gain = { subVolume.target, subVolume.target };
    kernels.addTable (sub, sound);
}

bool KernelVoice::filterIsOn (const VoiceSettings& settings)
{
    return settings.filterEnabled && ! settings.cutoffIsAtItsTop;
}

FilteredVoice KernelVoice::filtered (const VoiceSettings& settings, int numFrames)
{
    const auto cutoff = settings.keyTracking * noteFrequency + settings.cutoff;

    if (cutoff != lastCutoff || settings.resonance != lastResonance)
        coefficients = makeFilterCoefficients (static_cast<double> (lastCutoff = cutoff),
                                               static_cast<double> (lastResonance = settings.resonance),
                                               rate);

    return { std::span (frames).first (static_cast<size_t> (numFrames)), coefficients, &filterState };
}

EnvelopeRates KernelVoice::ratesOf (const VoiceSettings& settings) const
{
    return makeEnvelopeRates (settings.attack, settings.decay, settings.sustain, settings.release, rate);
}

void KernelVoice::mixInto (const VoiceSettings& settings, std::span<float> left, std::span<float> right)
{
    const auto rates = ratesOf (settings);
    const auto run = std::span (levels).first (left.size());
    followRates (envelope, rates);
    fillLevels (envelope, rates, run);
    kernels.mixVoice (std::span (frames).first (left.size()), run, velocity, left, right);
}

void KernelVoice::render (const VoiceSettings& settings, std::span<float> left, std::span<float> right)
{
    const auto numFrames = static_cast<int> (left.size());
    renderOscillators (settings, numFrames);

    if (filterIsOn (settings))
    {
        const auto voice = filtered (settings, numFrames);
        kernels.filterVoices (std::span (&voice, 1), static_cast<FilterType> (settings.filterType), 2);
    }

    mixInto (settings, left, right);
}
} // namespace Zn::Test
