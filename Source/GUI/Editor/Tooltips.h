#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Editor/Cards.h"
#include "GUI/Widgets/Card.h"
#include "GUI/Widgets/UserSettings.h"

namespace Zn::GUI
{
/** Watches what the pointer rests on, and explains it. Thread: message. */
class Tooltips
{
public:
    /** Shows them on the layer, for what lies in its parent. */
    Tooltips (juce::Component& layerToUse,
              const AssetScheme::Canvas& canvas,
              const UserSettings& settingsToUse,
              Events::Broadcaster& polls);

    /** What the pointer is on, and how long it has rested: shows the tooltip of it, or takes that away. */
    void look (juce::Component* underPointer, juce::Point<int> pointer, int restedMilliseconds);
    void hide() { card.setVisible (false); }

    /** The heading of the one that is shown; empty while there is none. */
    juce::String getShown() const { return card.isVisible() ? card.getTitle() : juce::String(); }

private:
    void poll();

    juce::Component& layer;
    const UserSettings& settings;
    TooltipCard card;
    CardShadow shadow;
    TooltipText text;
    juce::Component::SafePointer<juce::Component> explained, pressed;
    juce::Point<int> lastPointer;
    juce::uint32 restsSince = 0; // milliseconds
    int lastLook = 0;            // in intervals of looks at a text
    Events::Listener pollListener;
};
} // namespace Zn::GUI
