#include "HostParameters.h"

#include "Errors.h"

#include "Support/TextTable.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace Zn::Render
{
namespace
{
constexpr int longestText = 64;
constexpr int mostTextsShown = 8;

juce::String identifierOf (const juce::AudioProcessorParameter& parameter)
{
    const auto* hosted = dynamic_cast<const juce::HostedAudioProcessorParameter*> (&parameter);
    return hosted != nullptr ? hosted->getParameterID() : juce::String (parameter.getParameterIndex());
}

/** A number, perhaps with a unit: "12", "-3.5 dB", "40%". */
bool isNumber (const juce::String& text)
{
    const auto number = text.trimStart();
    const auto end = number.indexOfAnyOf ("0123456789");

    if (end < 0 || ! number.substring (0, end).containsOnly ("+-."))
        return false;

    const auto unit = number.substring (end).trimCharactersAtStart ("0123456789.eE+-").trim();
    return ! unit.containsAnyOf ("0123456789/:");
}

/** A text is a value if it comes back as it was, or if it is a number where the parameter shows numbers. */
bool isValue (const juce::AudioProcessorParameter& parameter, const juce::String& text, float value)
{
    const auto shown = [&] (float at) { return parameter.getText (at, longestText); };

    if (! std::isfinite (value) || value < 0.0f || value > 1.0f)
        return false;

    return shown (value).trim().equalsIgnoreCase (text.trim())
           || (isNumber (text) && isNumber (shown (0.0f)) && isNumber (shown (1.0f)));
}

juce::String textsOf (const juce::AudioProcessorParameter& parameter)
{
    const auto all = parameter.isDiscrete() ? parameter.getAllValueStrings() : juce::StringArray();

    if (! all.isEmpty() && all.size() <= mostTextsShown)
        return all.joinIntoString (", ");

    return parameter.getText (0.0f, longestText) + " to " + parameter.getText (1.0f, longestText);
}
} // namespace

juce::AudioProcessorParameter& findParameter (const juce::AudioProcessor& processor,
                                              const juce::String& identifier)
{
    const auto& parameters = processor.getParameters();
    const auto found = std::find_if (parameters.begin(), parameters.end(), [&] (const auto* parameter) {
        return identifierOf (*parameter) == identifier;
    });

    if (found == parameters.end())
        throw ArgumentError ("there is no parameter '" + identifier.toStdString()
                             + "'; --list-params shows them all");

    return **found;
}

void setParameter (juce::AudioProcessor& processor, const juce::String& identifier, const juce::String& text)
{
    auto& parameter = findParameter (processor, identifier);
    const auto value = parameter.getValueForText (text);

    if (! isValue (parameter, text, value))
        throw ArgumentError ("'" + text.toStdString() + "' is no value of " + identifier.toStdString() + " ("
                             + textsOf (parameter).toStdString() + "); --list-params shows them all");

    parameter.setValueNotifyingHost (value);
}

juce::String listParameters (const juce::AudioProcessor& processor)
{
    using Row = std::array<juce::String, 4>;
    std::vector<Row> rows { { "ID", "Name", "Value", "Range" } };

    for (const auto* parameter : processor.getParameters())
        rows.push_back ({ identifierOf (*parameter),
                          parameter->getName (longestText),
                          parameter->getText (parameter->getValue(), longestText),
                          textsOf (*parameter) });

    return Tools::textTable (rows);
}
} // namespace Zn::Render
