#include "GUI/Widgets/ParameterEdit.h"

namespace Zn::GUI
{
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
    parameter->endGesture();

    if (parameter->getNormalised() != start)
        transaction->markChanged();
}

bool changeAtOnce (Parameters::Parameter& parameter,
                   const std::function<void (Parameters::Parameter&)>& change)
{
    const auto before = parameter.getNormalised();

    parameter.beginGesture();
    change (parameter);
    parameter.endGesture();

    return parameter.getNormalised() != before;
}
} // namespace Zn::GUI
