#pragma once

#include "GUI/Learn/LearnBar.h"
#include "GUI/Learn/LearnPanel.h"
#include "GUI/Learn/LearnTargets.h"

#include <optional>
#include <vector>

namespace Zn::GUI
{
/** Lies over the page while keys and the pedal are learned: dims all but what can be learned, which shows by itself what
    is learned for it, and takes the clicks. Click: the next message is for this; again: no longer. Right-click:
    forgets it. After a slot the next one that has no key waits for one. Tab stays inside.

    Only there while Learning is active. Thread: message.
*/
class LearnMode : public juce::Component, public TooltipSource
{
public:
    /** The page is what it lies over. */
    LearnMode (EditorContext& contextToUse, juce::Component& pageToMark);

    /** Stops waiting, else leaves. False when it was not there. */
    bool leave();

    void paint (juce::Graphics& g) override;
    void mouseDown (const juce::MouseEvent& event) override;
    TooltipText getTooltipText() const override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void follow();
    void show (bool shouldBeShown);
    void answerBindings (const std::optional<Learning::Target>& waitedFor);
    void armNextSlot (int after);
    void poll();
    void pulse();
    void mark (std::optional<Learning::Target> target);
    void layOut();
    void showLines();

    void paintEdge (juce::Graphics& g, const LearnTarget& target, std::string_view colour) const;
    juce::Rectangle<int> boundsOf (const LearnTarget& target) const;
    const LearnTarget* targetAt (juce::Point<int> position) const;
    juce::String titleOf (const Learning::Target& target) const;

    EditorContext& context;
    juce::Component& page;
    LearnBar bar;
    LearnPanel panel;
    std::optional<CardShadow> panelShadow; // once the panel lies on this

    std::vector<LearnTarget> targets;
    std::vector<Learning::LearnMap::Binding> bindings;
    std::optional<Learning::Target> armed, marked; // marked: under the pointer in the panel
    float brightness = 1.0f;                       // 0..1, of what is armed

    Events::Listener learning, canvas, settings, polls;
    Events::UpdateTimer pulses; // while it waits
};
} // namespace Zn::GUI
