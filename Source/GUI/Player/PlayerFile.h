#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Player/PlayerActions.h"
#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/WheelSteps.h"

namespace Zn::GUI
{
/** The name of the player's file and how long it is. A press opens the list of all files, the wheel and the arrow keys
    step through it. Thread: message.
*/
class PlayerFile : public Control
{
public:
    explicit PlayerFile (PlayerActions& actionsToUse);

    const juce::String& getShownName() const noexcept { return name; }
    const juce::String& getShownLength() const noexcept { return length; }
    void openMenu();

    TooltipText getTooltipText() const override;
    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;
    void look();

    PlayerActions& actions;
    juce::String name, length;
    bool isStale = false;
    WheelSteps wheelSteps;

    SVGPainter chevron { "down.svg" };
    juce::Font nameFont, lengthFont;
    juce::Rectangle<float> nameArea, lengthArea, chevronArea;
    Events::Listener listener;
};
} // namespace Zn::GUI
