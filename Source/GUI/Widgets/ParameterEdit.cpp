#include "GUI/Widgets/ParameterEdit.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
/** A hand that comes back to where it began has changed nothing, whatever the last digit says. */
bool isAnother (float normalised, float before)
{
    constexpr auto rounding = 1e-6f;
    return std::abs (normalised - before) > rounding;
}
} // namespace

ParameterEdit::ParameterEdit (Edits& edits,
                              std::shared_ptr<Parameters::Parameter> parameterToEdit,
                              const juce::String& name)
    : transaction (edits.begin (name))
    , parameter (std::move (parameterToEdit))
    , start (parameter->getNormalised())
{
    parameter->beginGesture();
}

ParameterEdit::~ParameterEdit()
{
    if (isAnother (parameter->getNormalised(),
                   start)) // of what was in the hand; afterwards it may be another slot's
        transaction->markChanged();

    parameter->endGesture();
}

bool changeAtOnce (Parameters::Parameter& parameter,
                   const std::function<void (Parameters::Parameter&)>& change)
{
    const auto before = parameter.getNormalised();

    parameter.beginGesture();
    change (parameter);
    parameter.endGesture();

    return isAnother (parameter.getNormalised(), before);
}
} // namespace Zn::GUI
