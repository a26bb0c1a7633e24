#include "GUI/Widgets/SpokenValue.h"

namespace Zn::GUI
{
double SpokenValue::getCurrentValue() const
{
    return double (control.getParameter()->getNormalised());
}

juce::String SpokenValue::getCurrentValueAsString() const
{
    return control.getShownText (ValueDetail::full);
}

SpokenValue::AccessibleValueRange SpokenValue::getRange() const
{
    constexpr auto percent = 0.01;
    const auto numSteps = control.getParameter()->getNumSteps();
    return { { 0.0, 1.0 }, numSteps > 0 ? 1.0 / numSteps : percent };
}

void SpokenValue::setValue (double normalised)
{
    control.changeJoining (
        [normalised] (auto& p) { p.setNormalisedNotifying (static_cast<float> (normalised)); });
}
} // namespace Zn::GUI
