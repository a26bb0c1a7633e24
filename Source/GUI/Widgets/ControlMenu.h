#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** The menu of one value: type, reset, copy, paste, learn, and what the host offers. Thread: message. */
void showControlMenu (EditorContext& context, ValueControl& control);

/** The key that asks for such a menu. */
bool isMenuKey (const juce::KeyPress& key);
} // namespace Zn::GUI
