#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** The menu of one value: its names, then type, reset, copy, paste, learn, and what the host offers for it. No line does
    anything once the control is gone. Thread: message.
*/
juce::PopupMenu controlMenu (EditorContext& context, ValueControl& control);
} // namespace Zn::GUI
