#include "GUI/Framework/AssetScheme/Holder.h"

namespace Zn::GUI::AssetScheme
{
Holder::Holder (juce::Component& componentToHold,
                Interface& ownerToTell,
                Canvas& canvasToLieOn,
                std::string element)
    : component (componentToHold)
    , owner (ownerToTell)
    , canvas (canvasToLieOn)
    , bounds (component, canvas, std::move (element))
    , listener (canvas, [this] { layOut(); })
{
    component.addComponentListener (this);
}

Holder::~Holder()
{
    component.removeComponentListener (this);
}

void Holder::setElement (std::string element)
{
    bounds.setElement (std::move (element));
    layOut();
}

void Holder::placeBeside (juce::Rectangle<int> control)
{
    bounds.placeBeside (control);
    layOut();
}

void Holder::layOut()
{
    if (! canvas.getRoot().isParentOf (&component))
        return;

    bounds.apply();
    component.repaint();
    owner.schemeChanged();
}
} // namespace Zn::GUI::AssetScheme
