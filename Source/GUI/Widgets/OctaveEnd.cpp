#include "GUI/Widgets/OctaveEnd.h"

#include "GUI/Widgets/ValueText.h"
#include "Plugin/Vornel/OctaveRange.h"

#include <algorithm>

namespace Zn::GUI
{
OctaveEnd::OctaveEnd (Side sideToBe, Octave octaveToSet, Octave otherEnd, const UserSettings& settingsToUse)
    : IntLike (octaveToSet->getName())
    , side (sideToBe)
    , octave (std::move (octaveToSet))
    , other (std::move (otherEnd))
    , settings (settingsToUse)
{}

juce::NormalisableRange<float> OctaveEnd::getRange() const
{
    return { 0.0f, static_cast<float> (Audio::Plugins::Vornel::OctaveRange::highest), 1.0f };
}

void OctaveEnd::setIntValue (int newValue)
{
    octave->setInt (side == Side::low ? std::min (newValue, other->getInt() - 1)
                                      : std::max (newValue, other->getInt() + 1));
}

juce::String OctaveEnd::getTextForNormalised (float normalised) const
{
    return pitchAt (juce::roundToInt (getRange().convertFrom0to1 (normalised)));
}

void OctaveEnd::setFromText (const juce::String& text)
{
    for (auto value = 0; value <= getNumSteps(); ++value)
        if (pitchAt (value) == text)
            setIntValue (value);
}

/** The highest pitch lies below its octave: the range ends ahead of it. */
juce::String OctaveEnd::pitchAt (int octaveNumber) const
{
    constexpr auto octaveOfMiddleC = 5;
    const auto shift = settings.get().middleC - octaveOfMiddleC;
    const auto pitch = side == Side::low ? "C" + juce::String (octaveNumber + shift)
                                         : "B" + juce::String (octaveNumber - 1 + shift);
    return withTrueMinus (pitch);
}
} // namespace Zn::GUI
