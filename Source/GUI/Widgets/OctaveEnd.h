#pragma once

#include "GUI/Widgets/UserSettings.h"
#include "Parameters/IntLike.h"

#include <memory>

namespace Zn::GUI
{
/** One end of a range of octaves as a control sees it: on the line of both, at least one octave from the other end, and
    written as the lowest or the highest pitch that is in. Thread: message.
*/
class OctaveEnd : public Parameters::IntLike
{
public:
    enum class Side
    {
        low,
        high
    };

    using Octave = std::shared_ptr<Parameters::Parameter>;

    OctaveEnd (Side sideToBe, Octave octaveToSet, Octave otherEnd, const UserSettings& settingsToUse);

    juce::NormalisableRange<float> getRange() const override;
    float getDefault() const override { return side == Side::low ? 0.0f : 1.0f; }
    int getIntValue() const override { return octave->getInt(); }
    void setIntValue (int newValue) override;

    juce::String getCurrentText() const override { return pitchAt (getIntValue()); }
    juce::String getTextForNormalised (float normalised) const override;
    void setFromText (const juce::String& text) override;

private:
    juce::String pitchAt (int octaveNumber) const;

    const Side side;
    const Octave octave, other;
    const UserSettings& settings;
};
} // namespace Zn::GUI
