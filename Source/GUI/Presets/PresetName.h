#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Presets/PresetActions.h"
#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/WheelSteps.h"

#include <functional>

namespace Zn::GUI
{
/** The name of the preset that is loaded, with its star, its folder, and a dot while it has unsaved changes. A click
    opens the browser, the wheel and the arrow keys step through the presets. Thread: message.
*/
class PresetName : public Control
{
public:
    struct Callbacks
    {
        CallbackFunc openBrowser, showMenu;
        std::function<bool()> isBrowserOpen;
    };

    /** The actions outlive it. */
    PresetName (EditorContext& contextToUse, PresetActions& actionsToUse, Callbacks callbacksToUse);

    const juce::String& getShownName() const noexcept { return shown.name; }
    bool showsUnsaved() const noexcept { return shown.isDirty; }
    juce::String getSpoken() const;

    TooltipText getTooltipText() const override;
    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    struct Shown
    {
        juce::String name {}, category {};
        bool isDirty = false, isFavourite = false, isOpen = false;

        bool operator== (const Shown&) const = default;
    };

    void paintControl (juce::Graphics& g) override;
    void poll() override;
    void look();
    void announce();
    void toggleFavourite();
    bool act (const juce::KeyPress& key);

    PresetActions& actions;
    const Callbacks callbacks;
    Shown shown;
    bool isStale = true;
    WheelSteps wheelSteps;

    SVGPainter star { "star.svg" }, starred { "starred.svg" }, chevron { "down.svg" };
    juce::Font nameFont, categoryFont;
    juce::Rectangle<float> starArea, textArea, chevronArea;

    Events::Listener libraryListener, settingsListener;
};
} // namespace Zn::GUI
