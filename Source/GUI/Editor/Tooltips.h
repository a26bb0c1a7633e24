#pragma once

#include "Foundation/Events/Listener.h"
#include "GUI/Editor/Cards.h"
#include "GUI/Widgets/Card.h"
#include "GUI/Widgets/UserSettings.h"

namespace Zn::GUI
{
/** Watches what the pointer rests on, and explains it. Where the pointer is it knows from the mouse events: an answer of
    the window system takes its time. Beside the page it takes the middle of what is under the pointer. Thread: message.
*/
class Tooltips : private juce::MouseListener
{
public:
    /** Shows them on the layer, for all that lies in the page's window. */
    Tooltips (juce::Component& pageToWatch,
              juce::Component& layerToUse,
              const AssetScheme::Canvas& canvas,
              const UserSettings& settingsToUse,
              Events::Broadcaster& polls);
    ~Tooltips() override;

    /** What the pointer is on, and how long it has rested: shows the tooltip of it, or takes that away. */
    void look (juce::Component* underPointer, juce::Point<int> pointer, int restedMilliseconds);
    void hide() { card.setVisible (false); }

    /** The heading of the one that is shown; empty while there is none. */
    juce::String getShown() const { return card.isVisible() ? card.getTitle() : juce::String(); }

private:
    void mouseEnter (const juce::MouseEvent& event) override { follow (event); }
    void mouseMove (const juce::MouseEvent& event) override { follow (event); }
    void mouseDrag (const juce::MouseEvent& event) override { follow (event); }

    void follow (const juce::MouseEvent& event);
    void poll();

    juce::Component &page, &layer;
    const UserSettings& settings;
    TooltipCard card;
    CardShadow shadow;
    TooltipText text;
    juce::Component::SafePointer<juce::Component> explained, pressed, lastUnder;
    juce::Point<int> lastPointer; // on the layer
    juce::uint32 restsSince = 0;  // milliseconds
    int lastLook = 0;             // in intervals of looks at a text
    Events::Listener pollListener;
};
} // namespace Zn::GUI
