#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** For a drag over what takes no drop. Thread: message. */
juce::MouseCursor makeNoEntryPointer();
} // namespace Zn::GUI
