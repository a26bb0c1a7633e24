#pragma once

#include "GUI/Pattern/RollContext.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** One of the two names beside the lane: which value it shows and edits. Tab stops at the one that is chosen; arrows
    choose the other. Thread: message.
*/
class LaneSwitch : public Control
{
public:
    LaneSwitch (RollContext& contextToUse, std::string element, NoteValue valueToShow);

    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    float barWidth() const; // pixels, as is the gap at its left
    void choose() { roll.tools.laneValue.set (value); }
    void follow();
    bool isChosen() const { return roll.tools.laneValue.get() == value; }

    RollContext& roll;
    const NoteValue value;
    juce::Font font;
    juce::Rectangle<float> textArea;
    Events::Listener listener;
};
} // namespace Zn::GUI
