#include "Sequencer/Modifiers/NumParam.h"

namespace Zn::Sequencer::Modifiers
{
NumParam::NumParam (MusicalTime& timeToUse, CallbackFunc changedToUse, int barIndexToUse)
    : MusicalTimeParam ("Num", &Bar::num, timeToUse, std::move (changedToUse), barIndexToUse)
{}

juce::NormalisableRange<float> NumParam::getRange() const
{
    return { 1.0f, 32.0f, 1.0f };
}
} // namespace Zn::Sequencer::Modifiers
