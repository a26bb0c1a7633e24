#pragma once

#include "GUI/Widgets/EditorContext.h"
#include "Parameters/Parameter.h"

#include <memory>

namespace Zn::GUI
{
/** What the controls beside the brushes hold of the slot that is shown, whichever that is at the time. Each change is a
    step of undo, or part of the one that is under way. They must not outlive the editor. Thread: message.
*/
struct PatternParams
{
    explicit PatternParams (EditorContext& context);

    std::shared_ptr<Parameters::Parameter> grid;       // columns
    std::shared_ptr<Parameters::Parameter> noteLength; // of new notes, percent of a column
    std::shared_ptr<Parameters::Parameter> timeNum, timeDenum, multiply;
};
} // namespace Zn::GUI
