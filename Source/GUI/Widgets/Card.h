#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Widgets/UserSettings.h"

namespace Zn::GUI
{
/** The ground of what comes up above the editor, with its edge. Large ones have rounder corners. Thread: message. */
void paintCard (juce::Graphics& g, const AssetScheme::Canvas& canvas, juce::Rectangle<int> area);

/** The shadow that a card throws on what lies beneath it: a component behind it, which follows it.

    A member of whoever owns the card; may outlive it. Thread: message.
*/
class CardShadow : public juce::Component, private juce::ComponentListener
{
public:
    /** The card has a parent already. */
    CardShadow (juce::Component& cardToFollow, const AssetScheme::Canvas& canvasToUse);
    ~CardShadow() override;

    bool isNeeded() const noexcept { return card != nullptr; }

    void paint (juce::Graphics& g) override;

private:
    void componentMovedOrResized (juce::Component&, bool wasMoved, bool wasResized) override;
    void componentVisibilityChanged (juce::Component&) override;
    void componentBroughtToFront (juce::Component&) override;
    void componentBeingDeleted (juce::Component&) override;
    void follow();

    juce::Component* card; // null once it is gone
    const AssetScheme::Canvas& canvas;
};

/** Lets a card that has just come up fade in, unless the user wants nothing to move. */
void fadeIn (juce::Component& card, CardShadow& shadow, const UserSettings& settings);
} // namespace Zn::GUI
