#pragma once

#include "GUI/Widgets/Edits.h"
#include "Parameters/Parameter.h"

#include <functional>
#include <memory>

namespace Zn::GUI
{
/** A value in a hand: one gesture for the host and one step of undo, from construction to destruction. The step is kept
    if the value is then another one. Thread: message.
*/
class ParameterEdit
{
public:
    ParameterEdit (Edits& edits,
                   std::shared_ptr<Parameters::Parameter> parameterToEdit,
                   const juce::String& name);
    ~ParameterEdit();

    ParameterEdit (const ParameterEdit&) = delete;
    ParameterEdit& operator= (const ParameterEdit&) = delete;

    float getStart() const noexcept { return start; }

    /** Puts back what was there. */
    void restore() { parameter->setNormalisedNotifying (start); }

private:
    const std::unique_ptr<Undo::Transaction> transaction; // first: it may let a load come in
    const std::shared_ptr<Parameters::Parameter> parameter;
    const float start; // normalised
};

/** A change that is over at once: the gesture, and whether it has changed the value. */
bool changeAtOnce (Parameters::Parameter& parameter,
                   const std::function<void (Parameters::Parameter&)>& change);
} // namespace Zn::GUI
