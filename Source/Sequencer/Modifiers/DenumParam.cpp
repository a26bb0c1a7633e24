#include "Sequencer/Modifiers/DenumParam.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zn::Sequencer::Modifiers
{
namespace
{
constexpr std::array choices { 2.0f, 4.0f, 8.0f, 16.0f, 32.0f, 64.0f, 128.0f, 256.0f };
constexpr auto lastIndex = static_cast<int> (choices.size()) - 1;

std::size_t nearestIndex (float value)
{
    const auto isNearer = [value] (float a, float b) { return std::abs (a - value) < std::abs (b - value); };
    const auto nearest = std::min_element (choices.begin(), choices.end(), isNearer);
    return static_cast<std::size_t> (nearest - choices.begin());
}

float choiceAt (float, float, float proportion)
{
    return choices[static_cast<std::size_t> (juce::roundToInt (proportion * float (lastIndex)))];
}

float proportionOf (float, float, float value)
{
    return static_cast<float> (nearestIndex (value)) / float (lastIndex);
}

float nearestChoice (float, float, float value)
{
    return choices[nearestIndex (value)];
}
} // namespace

DenumParam::DenumParam (MusicalTime& timeToUse, CallbackFunc changedToUse, int barIndexToUse)
    : MusicalTimeParam ("Denum", &Bar::denum, timeToUse, std::move (changedToUse), barIndexToUse)
{}

int DenumParam::getNumSteps() const
{
    return lastIndex;
}

juce::NormalisableRange<float> DenumParam::getRange() const
{
    return { choices.front(), choices.back(), choiceAt, proportionOf, nearestChoice };
}

std::vector<std::string> DenumParam::getChoiceTexts() const
{
    std::vector<std::string> texts;

    for (const auto choice : choices)
        texts.push_back (std::to_string (static_cast<int> (choice)));

    return texts;
}
} // namespace Zn::Sequencer::Modifiers
