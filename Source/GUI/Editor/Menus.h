#pragma once

#include "Parameters/MenuItems.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** A menu of JUCE's with the lines of one of ours, which does nothing once its owner is gone. Thread: message. */
juce::PopupMenu popupMenuOf (const Parameters::MenuItems::Item& menu, juce::Component& owner);

/** Where it comes up: inside the page, beside a component or at the pointer, so that what is ticked is in sight. */
juce::PopupMenu::Options
menuOptions (const juce::PopupMenu& menu, juce::Component& page, juce::Component* beside, int width);
} // namespace Zn::GUI
