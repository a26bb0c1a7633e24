#pragma once

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"

namespace Zn::GUI
{
/** A hairline between groups of controls. Thread: message. */
class Divider : public AssetScheme::Element<>
{
public:
    Divider (EditorContext& context, std::string element) : Element (context.canvas, std::move (element))
    {
        setInterceptsMouseClicks (false, false);
        setAccessible (false);
    }

    void paint (juce::Graphics& g) override { g.fillAll (AssetScheme::Base::get().colourOf ("Hairline")); }
};
} // namespace Zn::GUI
