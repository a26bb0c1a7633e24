#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"
#include "GUI/Widgets/GroupHandler.h"

#include <functional>

namespace Zn::GUI
{
/** One part of the synth on a surface of its own. It is faint while the synth or the part is off, but can still be edited;
    its power button stays as it is while the part is off. Thread: message.
*/
class SoundCard : public AssetScheme::Element<>
{
public:
    /** The title is for those who cannot see it. */
    SoundCard (EditorContext& contextToUse, std::string element, const juce::String& title);

    void schemeChanged() override;
    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

protected:
    void add (std::initializer_list<juce::Component*> children);

    /** For a part that can be off by itself. */
    void setPower (juce::Component& powerButton, std::function<bool()> isOnToAsk);

    /** Called all the time, to look at what is shown. */
    virtual void poll();

    EditorContext& context;

private:
    juce::Path surface;
    juce::Component* power = nullptr;
    std::function<bool()> isOn;
    Events::Listener pollListener;
};

/** Whether the synth is on, in a plug-in that has one. */
bool soundsNow (const EditorContext& context) noexcept;

/** As faint as what is off, or not at all. */
void showAsOn (juce::Component& component, bool isOn);
} // namespace Zn::GUI
