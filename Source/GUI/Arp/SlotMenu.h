#pragma once

#include "GUI/Pattern/SlotEdits.h"
#include "GUI/Widgets/Learning.h"
#include "GUI/Widgets/SlotExport.h"

namespace Zn::GUI
{
/** What the menu of a slot does its work with; all of it lives as long as the owner. */
struct SlotMenuTools
{
    juce::Component& owner;
    SlotEdits& edits;
    SlotExport& files;
    Learning& learning;
};

/** What can be done with one of the eight patterns. Lines that are chosen once the owner is gone do nothing.
    Thread: message.
*/
juce::PopupMenu slotMenu (const SlotMenuTools& tools, int slot, bool isEmpty);
} // namespace Zn::GUI
