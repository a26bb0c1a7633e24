#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>

namespace Zn::Tests
{
namespace
{
std::unique_ptr<juce::AccessibilityHandler> accessibilityOf (juce::Component& component);

// The rules of access do not hold for what a template is made of.
template <auto makeHandler>
struct HandlerMaker
{
    friend std::unique_ptr<juce::AccessibilityHandler> accessibilityOf (juce::Component& component)
    {
        return (component.*makeHandler)();
    }
};

/** What a component tells screen readers. JUCE asks only those that lie in a window of the system, which these tests have
    not.
*/
template struct HandlerMaker<&juce::Component::createAccessibilityHandler>;
} // namespace
} // namespace Zn::Tests
