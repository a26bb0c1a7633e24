#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** The way of the Tab key through a page: JUCE's, without the page and what it lies in. These take the focus only to
    hear of keys, and show nothing of it. Thread: message.
*/
class FocusOrder : public juce::KeyboardFocusTraverser
{
public:
    explicit FocusOrder (const juce::Component& pageToPass) : page (pageToPass) {}

    juce::Component* getNextComponent (juce::Component* current) override;
    juce::Component* getPreviousComponent (juce::Component* current) override;
    std::vector<juce::Component*> getAllComponents (juce::Component* parent) override;

private:
    bool isStop (const juce::Component* component) const
    {
        return component != &page && ! component->isParentOf (&page);
    }

    const juce::Component& page;
};
} // namespace Zn::GUI
