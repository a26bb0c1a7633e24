#include "Parameters/ParamKinds.h"

#include "Parameters/ParameterText.h"

namespace Zn::Audio
{
namespace
{
constexpr float silenceDecibels = -100.0f;
constexpr float middleDecibels = -12.0f;

const juce::String& nameOr (const juce::String& displayName, const juce::String& id)
{
    return displayName.isEmpty() ? id : displayName;
}
} // namespace

BoolParam::BoolParam (ParamList& list,
                      const juce::String& id,
                      bool isOnByDefault,
                      const juce::String& displayName)
    : ListedParam (list, id, nameOr (displayName, id), isOnByDefault, Parameters::onOff())
{}

IntParam::IntParam (ParamList& list,
                    const juce::String& id,
                    IntRange range,
                    int defaultValue,
                    const juce::String& displayName,
                    const juce::String& unit)
    : ListedParam (list,
                   id,
                   nameOr (displayName, id),
                   range.minimum,
                   range.maximum,
                   defaultValue,
                   Parameters::wholeNumbers (range.minimum, range.maximum).withLabel (unit))
{}

FloatParam::FloatParam (ParamList& list,
                        const juce::String& id,
                        FloatRange range,
                        float defaultValue,
                        const juce::String& displayName,
                        const juce::String& unit)
    : ListedParam (list,
                   id,
                   nameOr (displayName, id),
                   juce::NormalisableRange<float> (range.minimum, range.maximum), // no steps: see decimals()
                   defaultValue,
                   Parameters::decimals().withLabel (unit))
{}

ChoiceParam::ChoiceParam (ParamList& list,
                          const juce::String& id,
                          const juce::StringArray& choices,
                          int defaultIndex,
                          const juce::String& displayName)
    : ListedParam (list, id, nameOr (displayName, id), choices, defaultIndex)
{}

VolumeParam::VolumeParam (ParamList& list,
                          const juce::String& id,
                          float maxDecibels,
                          float defaultDecibels,
                          const juce::String& displayName)
    : ListedParam (
        list, id, nameOr (displayName, id), silenceDecibels, maxDecibels, defaultDecibels, middleDecibels)
{}
} // namespace Zn::Audio
