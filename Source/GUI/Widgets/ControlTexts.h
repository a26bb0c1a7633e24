#pragma once

#include "GUI/Widgets/ValueText.h"

#include <string_view>

namespace Zn::GUI
{
/** What is written about a control, wherever it stands. */
struct ControlText
{
    juce::String title {};      // the full name, as in "Oscillator 1 volume"
    juce::String help {};       // one line
    juce::String shortcut {};   // the key that does the same
    juce::String label {};      // beside or above the control
    juce::String shortLabel {}; // where a label of its card does not fit; else as the label
    ValueStyle style = ValueStyle::ownText;
};

/** By the control's name in the scheme. Its name alone is the title of one that nothing is written about. */
ControlText controlText (std::string_view element);
} // namespace Zn::GUI
