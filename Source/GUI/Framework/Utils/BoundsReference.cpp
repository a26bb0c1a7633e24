#include "GUI/Framework/Utils/BoundsReference.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI::Utils
{
BoundsReference::BoundsReference (juce::Component& componentToPlace,
                                  const AssetScheme::Canvas& canvasToUse,
                                  std::string elementToTake)
    : component (componentToPlace), canvas (canvasToUse), element (std::move (elementToTake))
{}

void BoundsReference::apply()
{
    const auto* parent = component.getParentComponent();

    if (parent == nullptr)
        return;

    showOrHide (AssetScheme::Base::get().boundsOf (element, canvas.getFold()).has_value());

    if (place)
        component.setBounds (canvas.boundsBeside (*place, element)
                             - canvas.getRoot().getLocalPoint (parent, juce::Point<int>()));
    else
        component.setBounds (canvas.boundsIn (parent, element));
}

void BoundsReference::showOrHide (bool exists)
{
    if (exists == ! isHidden || (! exists && ! component.isVisible()))
        return;

    isHidden = ! exists;
    component.setVisible (exists);
}
} // namespace Zn::GUI::Utils
