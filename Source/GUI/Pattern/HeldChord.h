#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Widgets/TooltipSource.h"

namespace Zn::GUI
{
/** Names the chord that is held, and tells a screen reader of each new one. Thread: message. */
class HeldChord : public AssetScheme::Element<>, public TooltipSource
{
public:
    explicit HeldChord (RollContext& contextToUse);

    const juce::String& getText() const noexcept { return text; }
    TooltipText getTooltipText() const override;

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void refresh();

    RollContext& context;
    juce::Font bold, regular;
    juce::String text;
    bool hasKeys = false;
    Events::Listener namesListener;
};
} // namespace Zn::GUI
