#include "GUI/Widgets/Popup.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/Card.h"

namespace Zn::GUI
{
Popup::Popup (EditorContext& contextToUse, std::string element, const juce::String& title)
    : Element (contextToUse.canvas, std::move (element)), context (contextToUse)
{
    setTitle (title);
    setFocusContainerType (FocusContainerType::keyboardFocusContainer);
}

void Popup::paint (juce::Graphics& g)
{
    paintCard (g, context.canvas, getLocalBounds());
}

void Popup::paintHeading (juce::Graphics& g, juce::Rectangle<int> area) const
{
    g.setColour (AssetScheme::Base::get().colourOf ("Text"));
    g.setFont (headingFont);
    g.drawText (getTitle(), area, juce::Justification::centredLeft, true);
}

void Popup::schemeChanged()
{
    headingFont = context.canvas.fontOf ("FontHeading", AssetScheme::Cut::bold);
}

std::unique_ptr<juce::AccessibilityHandler> Popup::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::dialogWindow);
}
} // namespace Zn::GUI
