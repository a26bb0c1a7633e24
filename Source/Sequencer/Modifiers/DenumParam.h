#pragma once

#include "Sequencer/Modifiers/MusicalTimeParam.h"

namespace Zn::Sequencer::Modifiers
{
/** What note a bar's beat is, from a 2nd to a 256th: powers of two, evenly spread over the control.

    A number between them stands at the nearest, the lower one in the middle of two.
*/
class DenumParam : public MusicalTimeParam
{
public:
    DenumParam (MusicalTime& timeToUse, CallbackFunc changedToUse, int barIndexToUse = 0);

    int getNumSteps() const override;
    juce::NormalisableRange<float> getRange() const override;

    /** All of them. */
    std::vector<std::string> getChoiceTexts() const override;
};
} // namespace Zn::Sequencer::Modifiers
