#include "Synth/Kernels/Envelope.h"

#include <algorithm>

namespace Zn::Audio::Kernels
{
namespace
{
using Levels = std::span<float>;

float stepOver (float distance, float seconds, double sampleRate) noexcept
{
    const auto samples = static_cast<double> (seconds) * sampleRate;
    return samples > 0.0 ? static_cast<float> (static_cast<double> (distance) / samples) : 0.0f;
}

bool hasHeldLongEnough (const EnvelopeState& state, const EnvelopeRates& rates) noexcept
{
    return state.heldSamples >= rates.holdSamples;
}

// Each of these fills samples until its stage is over or the run is, and returns how many.

int fillAttack (EnvelopeState& state, const EnvelopeRates& rates, Levels levels) noexcept
{
    auto filled = 0;
    auto level = state.level;

    for (auto& sample : levels)
    {
        ++filled;
        level += rates.attackStep;

        if (! (level < 1.0f))
        {
            sample = level = 1.0f;
            state.stage = rates.decayStep > 0.0f ? EnvelopeStage::decay : EnvelopeStage::sustain;
            break;
        }

        sample = level;
    }

    state.level = level;
    return filled;
}

int fillDecay (EnvelopeState& state, const EnvelopeRates& rates, Levels levels) noexcept
{
    auto filled = 0;
    auto level = state.level;

    for (auto& sample : levels)
    {
        ++filled;
        level -= rates.decayStep;

        if (! (level > rates.sustainLevel))
        {
            sample = level = rates.sustainLevel;
            state.stage = EnvelopeStage::sustain;
            break;
        }

        sample = level;
    }

    state.level = level;
    return filled;
}

/** While the key is down nothing changes; else the sample that completes the hold starts the release. */
int fillSustain (EnvelopeState& state, const EnvelopeRates& rates, Levels levels) noexcept
{
    const auto available = static_cast<int> (levels.size());
    const auto maySound = state.noteIsDown && ! rates.forceRelease
                              ? available
                              : std::clamp (rates.holdSamples - state.heldSamples, 1, available);

    state.level = rates.sustainLevel;
    state.heldSamples =
        std::min (state.heldSamples, rates.holdSamples) + maySound; // kept from growing for ever
    std::fill_n (levels.begin(), maySound, state.level);

    if ((! state.noteIsDown || rates.forceRelease) && hasHeldLongEnough (state, rates))
    {
        if (state.releaseStep > 0.0f)
        {
            state.stage = EnvelopeStage::release;
        }
        else
        {
            stopWithoutTail (state);
            levels[static_cast<size_t> (maySound - 1)] = 0.0f;
        }
    }

    return maySound;
}

int fillRelease (EnvelopeState& state, Levels levels) noexcept
{
    auto filled = 0;
    auto level = state.level;

    for (auto& sample : levels)
    {
        ++filled;
        level -= state.releaseStep;

        if (! (level > 0.0f))
        {
            sample = level = 0.0f;
            state.stage = EnvelopeStage::idle;
            break;
        }

        sample = level;
    }

    state.level = level;
    return filled;
}

int fillStage (EnvelopeState& state, const EnvelopeRates& rates, Levels levels) noexcept
{
    switch (state.stage)
    {
    case EnvelopeStage::attack:
        return fillAttack (state, rates, levels);
    case EnvelopeStage::decay:
        return fillDecay (state, rates, levels);
    case EnvelopeStage::sustain:
        return fillSustain (state, rates, levels);
    case EnvelopeStage::release:
        return fillRelease (state, levels);
    case EnvelopeStage::idle:
        break;
    }

    std::fill (levels.begin(), levels.end(), 0.0f);
    return static_cast<int> (levels.size());
}
} // namespace

EnvelopeRates makeEnvelopeRates (float attackSeconds,
                                 float decaySeconds,
                                 float sustainLevel,
                                 float releaseSeconds,
                                 double sampleRate) noexcept
{
    EnvelopeRates rates;
    rates.attackStep = stepOver (1.0f, attackSeconds, sampleRate);
    rates.decayStep = stepOver (1.0f - sustainLevel, decaySeconds, sampleRate);
    rates.sustainLevel = sustainLevel;
    rates.releaseSeconds = releaseSeconds;
    rates.sampleRate = sampleRate;
    return rates;
}

void startNote (EnvelopeState& state, const EnvelopeRates& rates) noexcept
{
    if (state.isSounding() && ! rates.forceRelease)
    {
        if (rates.releaseSeconds > 0.0f)
            state.releaseStep = stepOver (state.level, rates.releaseSeconds, rates.sampleRate);
        else if (hasHeldLongEnough (state, rates))
            state.level = 0.0f;
    }

    state.noteIsDown = true;
    state.heldSamples = 0;

    if (rates.attackStep > 0.0f)
    {
        state.stage = EnvelopeStage::attack;
    }
    else if (rates.decayStep > 0.0f)
    {
        state.stage = EnvelopeStage::decay;
        state.level = 1.0f;
    }
    else
    {
        state.stage = EnvelopeStage::sustain;
        state.level = rates.sustainLevel;
    }
}

void stopNote (EnvelopeState& state, const EnvelopeRates& rates) noexcept
{
    if (state.isSounding() && state.noteIsDown && ! rates.forceRelease)
    {
        state.releaseStep = stepOver (state.level, rates.releaseSeconds, rates.sampleRate);

        if (! hasHeldLongEnough (state, rates))
            state.stage = EnvelopeStage::sustain;
        else if (rates.releaseSeconds > 0.0f)
            state.stage = EnvelopeStage::release;
        else
            stopWithoutTail (state);
    }

    state.noteIsDown = false;
}

void stopWithoutTail (EnvelopeState& state) noexcept
{
    state.stage = EnvelopeStage::idle;
    state.level = 0.0f;
}

void followRates (EnvelopeState& state, const EnvelopeRates& rates) noexcept
{
    if (state.stage != EnvelopeStage::release)
        state.releaseStep = stepOver (rates.sustainLevel, rates.releaseSeconds, rates.sampleRate);
}

void fillLevels (EnvelopeState& state, const EnvelopeRates& rates, std::span<float> levels) noexcept
{
    while (! levels.empty())
        levels = levels.subspan (static_cast<size_t> (fillStage (state, rates, levels)));
}
} // namespace Zn::Audio::Kernels
