#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** What a band, a card or a row of controls tells screen readers: that it holds others, and its title. */
inline std::unique_ptr<juce::AccessibilityHandler> groupHandler (juce::Component& component)
{
    return std::make_unique<juce::AccessibilityHandler> (component, juce::AccessibilityRole::group);
}
} // namespace Zn::GUI
