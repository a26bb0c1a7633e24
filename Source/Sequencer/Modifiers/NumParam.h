#pragma once

#include "Sequencer/Modifiers/MusicalTimeParam.h"

namespace Zn::Sequencer::Modifiers
{
/** How many beats a bar has, 1 to 32. */
class NumParam : public MusicalTimeParam
{
public:
    NumParam (MusicalTime& timeToUse, CallbackFunc changedToUse, int barIndexToUse = 0);

    juce::NormalisableRange<float> getRange() const override;
};
} // namespace Zn::Sequencer::Modifiers
