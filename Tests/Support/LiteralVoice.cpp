#include "Support/LiteralVoice.h"

#include <algorithm>
#include <cmath>

namespace Zn::Tests
{
namespace
{
constexpr double rampSeconds = 0.02;

/** Sample by sample while the place moves, and in one go where it rests. */
void applyPan (juce::SmoothedValue<float>& pan, juce::AudioBuffer<float>& buffer)
{
    const auto scale = [&] (float place, int start, int length) {
        buffer.applyGain (0, start, length, std::cos (place * 1.5707964f));
        buffer.applyGain (1, start, length, std::sin (place * 1.5707964f));
    };

    auto sample = 0;

    for (; sample < buffer.getNumSamples() && pan.isSmoothing(); ++sample)
        scale (pan.getNextValue(), sample, 1);

    scale (pan.getTargetValue(), sample, buffer.getNumSamples() - sample);
}
} // namespace

LiteralVoice::LiteralVoice (double sampleRate, int blockSize)
    : rate (sampleRate)
    , scratch (2, blockSize)
    , oscillatorBuffer (2, blockSize)
    , phases (static_cast<size_t> (blockSize))
{
    subVolume.reset (rate, rampSeconds);

    for (auto& oscillator : oscillators)
    {
        oscillator.volume.reset (rate, rampSeconds);

        for (auto& voice : oscillator.voices)
            voice.pan.reset (rate, rampSeconds);
    }
}

void LiteralVoice::noteStarted (const VoiceSettings& settings,
                                int note,
                                int velocity14Bit,
                                double bendSemitones)
{
    filter = {};
    bend (note, bendSemitones);
    velocityGain = static_cast<float> (velocity14Bit) * 5.4934993e-5f + 0.1f;

    for (size_t i = 0; i < oscillators.size(); ++i)
    {
        const auto pans = pitch (settings.oscillators[i], noteFrequency).pans;
        oscillators[i].volume.setCurrentAndTargetValue (settings.oscillators[i].volume);

        for (size_t voice = 0; voice < 2; ++voice)
        {
            oscillators[i].voices[voice].phase = 0.0;
            oscillators[i].voices[voice].pan.setCurrentAndTargetValue (pans[voice]);
        }
    }

    subVolume.setCurrentAndTargetValue (settings.subVolume * 0.1f);
    subPhase = 0.0;

    if (state != idle && settings.release > 0.0f)
        releaseStep = static_cast<float> (double (level) / (double (settings.release) * rate));
    else if (state != idle)
        level = 0.0f;

    noteIsDown = true;

    if (settings.attack > 0.0f)
        state = attack;
    else if (settings.decay > 0.0f && settings.sustain < 1.0f)
        state = decay, level = 1.0f;
    else
        state = sustain, level = settings.sustain;
}

void LiteralVoice::noteStopped (const VoiceSettings& settings)
{
    if (state != idle && noteIsDown)
    {
        state = settings.release > 0.0f ? release : idle;
        releaseStep = static_cast<float> (double (level) / (double (settings.release) * rate));
        level = state == idle ? 0.0f : level;
    }

    noteIsDown = false;
}

void LiteralVoice::bend (int note, double bendSemitones)
{
    noteFrequency = static_cast<float> (440.0 * std::pow (2.0, (note + bendSemitones) * (1.0 / 12.0) - 5.75));
}

void LiteralVoice::render (const VoiceSettings& settings, juce::AudioBuffer<float>& block)
{
    renderVoice (settings, block);
    applyEnvelope (settings, block);
}

float LiteralVoice::read (const std::vector<float>& channel, double phase)
{
    const auto n = static_cast<int> (channel.size());
    const auto at = [&] (int index) { return channel[static_cast<size_t> (std::clamp (index, 0, n - 1))]; };

    if (phase > 1.5)
        return 0.0f;

    if (phase >= 1.0)
        return channel.back();

    const auto x = phase * (n - 1);
    const auto i = static_cast<int> (x);
    const auto t = static_cast<float> (x - i);
    const auto before = at (i - 1), y0 = at (i), y1 = at (i + 1), y2 = at (i + 2);

    return 0.5f
           * (2.0f * y0
              + t
                    * (y1 - before
                       + t
                             * (2.0f * before - 5.0f * y0 + 4.0f * y1 - y2
                                + t * (3.0f * (y0 - y1) + y2 - before))));
}

LiteralVoice::Pitch LiteralVoice::pitch (const VoiceSettings::Oscillator& settings, float frequency)
{
    const auto m = std::log (double (frequency) * 0.0022727272) * 17.31234 + 69.0 + settings.tune
                   + 12.0 * settings.octave;
    const auto r = std::pow (2.0, m * 0.083333336 - 5.75);

    if (settings.unison == 1)
        return { { 440.0 * r, 440.0 * r }, { 0.5f, 0.5f }, { 1.0f, 1.0f } };

    const auto s = double (settings.spread);
    const auto n = std::log (r * 0.99999994) * 17.31234 + 70.0;
    return { { 440.0 * std::pow (2.0, (n - 1.01 - 0.09 * s) / 12.0 - 5.75),
               440.0 * std::pow (2.0, (n - 0.99 + 0.09 * s) / 12.0 - 5.75) },
             { 0.5f - settings.spread / 2.0f, 0.5f + settings.spread / 2.0f },
             { 0.5f, 0.5f } };
}

void LiteralVoice::renderVoice (const VoiceSettings& settings, juce::AudioBuffer<float>& block)
{
    block.clear();

    for (size_t i = 0; i < oscillators.size(); ++i)
        if (settings.oscillators[i].enabled)
            renderOscillator (oscillators[i], settings.oscillators[i], block);

    renderSub (settings, block);

    if (settings.filterEnabled)
        renderFilter (settings, block);

    block.applyGain (velocityGain);
}

void LiteralVoice::fillFrom (const LiteralTable& table,
                             double frequency,
                             double& phase,
                             juce::AudioBuffer<float>& buffer)
{
    const auto numSamples = static_cast<size_t> (buffer.getNumSamples());
    const auto increment = frequency * (1.0 / rate);

    for (size_t i = 0; i < numSamples; ++i)
    {
        phases[i] = phase;
        phase = std::fmod (phase + increment, 1.0);
    }

    for (auto c = 0; c < 2; ++c)
        for (size_t i = 0; i < numSamples; ++i)
            buffer.getWritePointer (c)[i] = read (table[static_cast<size_t> (c) % table.size()], phases[i]);
}

void LiteralVoice::renderOscillator (Oscillator& oscillator,
                                     const VoiceSettings::Oscillator& settings,
                                     juce::AudioBuffer<float>& block)
{
    const auto numSamples = block.getNumSamples();
    juce::AudioBuffer<float> sum (scratch.getArrayOfWritePointers(), 2, numSamples);
    juce::AudioBuffer<float> one (oscillatorBuffer.getArrayOfWritePointers(), 2, numSamples);
    const auto [frequencies, pans, gains] = pitch (settings, noteFrequency);
    sum.clear();

    for (size_t v = 0; v < static_cast<size_t> (settings.unison); ++v)
    {
        auto& voice = oscillator.voices[v];
        fillFrom (*settings.table, frequencies[v], voice.phase, one);
        voice.pan.setTargetValue (pans[v]);

        applyPan (voice.pan, one);

        if (gains[v] > 0.0f)
            for (auto c = 0; c < 2; ++c)
                sum.addFrom (c, 0, one, c, 0, numSamples, gains[v]);
    }

    // Runs over what is not heard, so that the volume itself changes in one step where a block begins.
    oscillator.volume.setTargetValue (settings.volume);
    oscillator.volume.applyGain (one, numSamples);

    if (settings.volume > 0.0f)
        for (auto c = 0; c < 2; ++c)
            block.addFrom (c, 0, sum, c, 0, numSamples, settings.volume);
}

void LiteralVoice::renderSub (const VoiceSettings& settings, juce::AudioBuffer<float>& block)
{
    const auto note = std::log (double (noteFrequency) * (1.0 / 440.0)) * (12.0 / std::log (2.0)) + 69.0
                      + 12.0 * settings.subOctave;
    juce::AudioBuffer<float> sum (scratch.getArrayOfWritePointers(), 2, block.getNumSamples());

    fillFrom (*settings.subTable, 440.0 * std::pow (2.0, note * (1.0 / 12.0) - 5.75), subPhase, sum);
    subVolume.setTargetValue (settings.subVolume * 0.1f);
    subVolume.applyGain (sum, sum.getNumSamples());

    for (auto c = 0; c < 2; ++c)
        block.addFrom (c, 0, sum, c, 0, block.getNumSamples());
}

void LiteralVoice::renderFilter (const VoiceSettings& settings, juce::AudioBuffer<float>& block)
{
    const auto cutoff =
        std::clamp (double (settings.keyTracking * noteFrequency + settings.cutoff), 10.0, 0.49 * rate);
    const auto g = static_cast<float> (std::tan (cutoff * 3.1415927 / rate));
    const auto r2 = 1.0f / settings.resonance;
    const auto h = 1.0f / (1.0f + g * (g + r2));

    for (auto c = 0; c < 2; ++c)
        for (auto& [s1, s2] : filter[static_cast<size_t> (c)])
            for (auto i = 0; i < block.getNumSamples(); ++i)
            {
                auto& sample = block.getWritePointer (c)[i];
                const auto high = h * (sample - (g + r2) * s1 - s2);
                const auto band = s1 + g * high;
                s1 = band + g * high;
                const auto low = s2 + g * band;
                s2 = low + g * band;
                sample = low;
            }
}

void LiteralVoice::applyEnvelope (const VoiceSettings& settings, juce::AudioBuffer<float>& block)
{
    if (state != release)
        releaseStep = static_cast<float> (double (settings.sustain) / (double (settings.release) * rate));

    for (auto i = 0; i < block.getNumSamples(); ++i)
    {
        advanceEnvelope (settings);

        for (auto c = 0; c < 2; ++c)
            block.getWritePointer (c)[i] *= level;
    }
}

void LiteralVoice::advanceEnvelope (const VoiceSettings& settings)
{
    const auto attackStep = static_cast<float> (1.0 / (double (settings.attack) * rate));
    const auto decayStep =
        static_cast<float> (double (1.0f - settings.sustain) / (double (settings.decay) * rate));

    switch (state)
    {
    case attack:
        level += attackStep;

        if (level >= 1.0f)
            level = 1.0f, state = decayStep > 0.0f ? decay : sustain;

        break;

    case decay:
        level -= decayStep;

        if (! (level > settings.sustain))
            level = settings.sustain, state = sustain;

        break;

    case sustain:
        level = settings.sustain;

        if (! noteIsDown)
            state = releaseStep > 0.0f ? release : idle;

        break;

    case release:
        level -= releaseStep;

        if (level <= 0.0f)
            level = 0.0f, state = idle;

        break;

    case idle:
        level = 0.0f;
        break;
    }
}
} // namespace Zn::Tests
