#include "GUI/Editor/FocusOrder.h"

namespace Zn::GUI
{
juce::Component* FocusOrder::getNextComponent (juce::Component* current)
{
    do
        current = KeyboardFocusTraverser::getNextComponent (current);
    while (current != nullptr && ! isStop (current));

    return current;
}

juce::Component* FocusOrder::getPreviousComponent (juce::Component* current)
{
    do
        current = KeyboardFocusTraverser::getPreviousComponent (current);
    while (current != nullptr && ! isStop (current));

    return current;
}

std::vector<juce::Component*> FocusOrder::getAllComponents (juce::Component* parent)
{
    auto all = KeyboardFocusTraverser::getAllComponents (parent);
    std::erase_if (all, [this] (const auto* component) { return ! isStop (component); });
    return all;
}
} // namespace Zn::GUI
