#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"

namespace Zn::GUI::Utils
{
/** Binds a component to a rectangle of the scheme by name, for those that nobody tells of changes: whoever
    owns one calls `apply`. Both must outlive it. Thread: message.
*/
class BoundsReference
{
public:
    BoundsReference (juce::Component& componentToPlace,
                     const AssetScheme::Canvas& canvas,
                     std::string element);

    /** Moves the component to its rectangle. Hides it as long as there is none; does nothing while it has
        no parent.
    */
    void apply();

    /** From now on beside a control, whose place is told in the root, not where the scheme has it. */
    void placeBeside (juce::Rectangle<int> control) { place = control; }

    void setElement (std::string newElement) { element = std::move (newElement); }
    const std::string& getElement() const noexcept { return element; }

private:
    void showOrHide (bool exists);

    juce::Component& component;
    const AssetScheme::Canvas& canvas;
    std::string element;
    std::optional<juce::Rectangle<int>> place;
    bool isHidden = false; // by us: the component may well be hidden by others
};
} // namespace Zn::GUI::Utils
