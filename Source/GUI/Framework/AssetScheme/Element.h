#pragma once

#include "GUI/Framework/AssetScheme/Holder.h"

#include <utility>

namespace Zn::GUI::AssetScheme
{
/** A component that lies where the scheme says: `Element<juce::TextEditor> search { canvas, "PresetSearch" };`

    Its component id is its first name in the scheme, by which tests find it. Thread: message.
*/
template <typename ComponentType = juce::Component>
class Element : public ComponentType, public Interface
{
public:
    template <typename... Args>
    explicit Element (Canvas& canvasToLieOn, std::string element, Args&&... args)
        : ComponentType (std::forward<Args> (args)...)
        , holder (*this, *this, canvasToLieOn, std::move (element))
    {
        this->setComponentID (getElement());
    }

    const std::string& getElement() const override { return holder.getElement(); }

    Canvas& getCanvas() noexcept { return holder.getCanvas(); }

    /** Takes another rectangle. */
    void setElement (std::string element) { holder.setElement (std::move (element)); }

    void placeBeside (juce::Rectangle<int> control) { holder.placeBeside (control); }

private:
    Holder holder;
};
} // namespace Zn::GUI::AssetScheme
