#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>
#include <utility>

namespace Zn::GUI
{
/** Tells screen readers of one of several, of which one is chosen. Thread: message. */
class RadioHandler : public juce::AccessibilityHandler
{
public:
    RadioHandler (juce::Component& toDescribe,
                  std::function<bool()> isChosenNow,
                  std::function<void()> choose)
        : AccessibilityHandler (
            toDescribe,
            juce::AccessibilityRole::radioButton,
            juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press, std::move (choose)))
        , isChosen (std::move (isChosenNow))
    {}

    juce::AccessibleState getCurrentState() const override
    {
        const auto state = AccessibilityHandler::getCurrentState().withCheckable();
        return isChosen() ? state.withChecked() : state;
    }

    /** Another one is chosen, or this one. */
    static void tellOfChange (juce::Component& component)
    {
        if (auto* handler = component.getAccessibilityHandler())
            handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
    }

private:
    const std::function<bool()> isChosen;
};
} // namespace Zn::GUI
