#pragma once

#include "GUI/Widgets/PageActions.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** Does what a key of the page stands for. False if it stands for nothing, or nobody can do it: then it is the host's.

    While the hand drags something, only Play acts: anything else would change what lies under the hand. Such keys are
    not the host's either. Thread: message.
*/
bool actOn (const juce::KeyPress& key, const PageActions& actions, bool isDragging = false);
} // namespace Zn::GUI
