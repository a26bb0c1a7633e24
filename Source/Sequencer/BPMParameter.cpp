#include "Sequencer/BPMParameter.h"

#include "Parameters/ParameterText.h"

#include <cmath>

namespace Zn::Sequencer
{
namespace
{
constexpr double slowest = 1.0, fastest = 999.0;
constexpr float defaultNormalised = 0.43078282f; // 100

juce::NormalisableRange<float> tempoRange()
{
    return { float (slowest), float (fastest), 0.0001f, 0.36446768f }; // 150 stands in the middle
}

float tempoFrom (float normalised)
{
    const auto range = tempoRange();
    return range.snapToLegalValue (range.convertFrom0to1 (juce::jlimit (0.0f, 1.0f, normalised)));
}

juce::String textOf (float tempo)
{
    return juce::String (juce::roundToInt (tempo));
}
} // namespace

float BPMParameter::getNormalised() const
{
    return tempoRange().convertTo0to1 (juce::jlimit (float (slowest), float (fastest), bpm.load()));
}

void BPMParameter::setDouble (double value)
{
    if (std::isfinite (value))
        bpm.exchange (static_cast<float> (juce::jlimit (slowest, fastest, value)));
}

juce::String BPMParameter::getTextForNormalised (float normalised) const
{
    return textOf (std::isfinite (normalised) ? tempoFrom (normalised) : bpm.load());
}

juce::String BPMParameter::getCurrentText() const
{
    return textOf (bpm.load());
}

void BPMParameter::setFromText (const juce::String& text)
{
    // Rounds to the fourth decimal, counted from the slowest tempo. In double: a float has no digit left for the
    // half at the fast end.
    const auto steps = std::floor (Parameters::finiteNumber (text) * 10000.0 - 9999.5);
    setDouble (steps * 0.0001 + slowest);
}

void BPMParameter::setNormalisedNotifying (float normalised)
{
    if (std::isfinite (normalised))
        bpm.exchange (tempoFrom (normalised));
}

float BPMParameter::getDefault() const
{
    return defaultNormalised;
}
} // namespace Zn::Sequencer
