#pragma once

#include "GUI/Framework/AssetScheme/Interface.h"
#include "GUI/Framework/Utils/BoundsReference.h"

namespace Zn::GUI::AssetScheme
{
/** What a component keeps to stay where the scheme wants it: lays it out when it gets a parent, and afresh when
    the editor's size, the fold or the scheme changes. A member of the component. Thread: message.
*/
class Holder : private juce::ComponentListener
{
public:
    Holder (juce::Component& component, Interface& owner, Canvas& canvas, std::string element);
    ~Holder() override;

    Holder (const Holder&) = delete;
    Holder& operator= (const Holder&) = delete;

    Canvas& getCanvas() noexcept { return canvas; }
    const std::string& getElement() const noexcept { return bounds.getElement(); }

    void setElement (std::string element);

    /** For a pop-up: beside the control that calls it, whose bounds are those in the root. */
    void placeBeside (juce::Rectangle<int> control);

    void layOut();

private:
    void componentParentHierarchyChanged (juce::Component&) override { layOut(); }

    juce::Component& component;
    Interface& owner;
    Canvas& canvas;
    Utils::BoundsReference bounds;
    Events::Listener listener;
};
} // namespace Zn::GUI::AssetScheme
