#pragma once

#include "GUI/Widgets/PageActions.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** Does what a key of the page stands for. False if it stands for nothing, or nobody can do it: then it is the host's.
    Thread: message.
*/
bool actOn (const juce::KeyPress& key, const PageActions& actions);
} // namespace Zn::GUI
