#include "Plugin/Vornel/ConnectedIntParam.h"

namespace Zn::Audio::Plugins::Vornel
{
ConnectedIntParam::ConnectedIntParam (juce::String nameToUse,
                                      IntRange rangeToUse,
                                      int defaultToUse,
                                      Connection connectionToUse)
    : IntLike (std::move (nameToUse))
    , range (rangeToUse)
    , defaultValue (defaultToUse)
    , connection (std::move (connectionToUse))
{
    jassert (connection.get != nullptr && connection.set != nullptr);
}

juce::NormalisableRange<float> ConnectedIntParam::getRange() const
{
    return { static_cast<float> (range.minimum), static_cast<float> (range.maximum), 1.0f };
}

void ConnectedIntParam::setIntValue (int newValue)
{
    const auto limited = juce::jlimit (range.minimum, range.maximum, newValue);

    if (limited != connection.get())
        connection.set (limited);
}
} // namespace Zn::Audio::Plugins::Vornel
