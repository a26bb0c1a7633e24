#include "GUI/Editor/OverlayLayer.h"

#include <utility>

namespace Zn::GUI
{
OverlayLayer::OverlayLayer (juce::Component& pageToCover,
                            AssetScheme::Canvas& canvasToUse,
                            UserSettings& settingsToUse)
    : page (pageToCover), canvas (canvasToUse), settings (settingsToUse)
{
    setInterceptsMouseClicks (false, true);
}

void OverlayLayer::openPopup (std::unique_ptr<juce::Component> newPopup)
{
    popup = std::move (newPopup);
    addAndMakeVisible (*popup);
}

void OverlayLayer::closePopup()
{
    popup.reset();
}

void OverlayLayer::showMenu (const Parameters::MenuItems::Item&, juce::Component*) {}
void OverlayLayer::showMenu (const juce::PopupMenu&, juce::Component*, std::function<void (int)>) {}
void OverlayLayer::showReadout (const juce::String&, const juce::String&, juce::Point<int>) {}
void OverlayLayer::hideReadout() {}
void OverlayLayer::showMessage (const juce::String&, const juce::String&, CallbackFunc) {}

void OverlayLayer::enterValue (juce::Component&,
                               const juce::String&,
                               std::function<bool (const juce::String&)>,
                               CallbackFunc)
{}
} // namespace Zn::GUI
