#pragma once

#include "Foundation/CallbackFunc.h"
#include "GUI/Framework/AssetScheme/Element.h"

#include <functional>

namespace Zn::GUI
{
/** A field over a control in which its value is typed.

    Enter and Tab offer the text to `accept`; one that is refused shakes the field once, or reddens it where nothing
    shall move, and leaves it open. Esc and the loss of the focus give up. Thread: message.
*/
class ValueEntry : public AssetScheme::Element<juce::TextEditor>, private juce::Timer
{
public:
    enum class End
    {
        cancelled,
        kept,
        keptForNext // with Tab
    };

    struct Asked
    {
        juce::String text;
        std::function<bool (const juce::String&)> accept;
        std::function<void (End)> finished; // the field may not go before it returns
    };

    ValueEntry (AssetScheme::Canvas& canvas,
                juce::Component& controlToLieOver,
                bool moves,
                Asked whatIsAsked);

    juce::Component* getControl() const noexcept { return control; }

    bool keyPressed (const juce::KeyPress& key) override;
    void focusLost (FocusChangeType cause) override;
    void schemeChanged() override;

private:
    bool offer (End end);
    void refuse();
    void timerCallback() override;

    const juce::Component::SafePointer<juce::Component> control;
    const bool mayMove;
    const Asked asked;
    juce::Rectangle<int> place;
    int shakeFrame = 0;
};
} // namespace Zn::GUI
