#pragma once

#include "GUI/Pattern/RollContext.h"
#include "GUI/Widgets/WheelSteps.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** Turns what the mouse does to the roll into what the tools understand, pans with the middle button, and scrolls when
    a drag goes beyond an edge. Thread: message.
*/
class RollMouse
{
public:
    RollMouse (RollContext& contextToUse, juce::Component& rollToServe);

    void move (const juce::MouseEvent& event);
    void leave();
    void down (const juce::MouseEvent& event);
    void drag (const juce::MouseEvent& event);
    void up (const juce::MouseEvent& event);
    void turnWheel (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel);

    /** The pencil is made anew for another size. */
    void schemeChanged() { pencil = {}; }

private:
    RollPointer pointerOf (const juce::MouseEvent& event) const;
    RollPointer pointerAt (juce::Point<float> position) const;
    void showCursor (RollCursor cursor);
    void showReadout (const juce::MouseEvent& event);
    void followBrush();
    void scrollAtEdge();
    void pan (juce::Point<float> position);
    juce::MouseCursor makePencil() const;

    RollContext& context;
    juce::Component& roll;
    juce::MouseCursor pencil;
    std::optional<RollCursor> shownCursor;
    std::optional<RollGeometry> panStart; // while the middle button is down
    juce::Point<float> pressed, last;     // where the button went down, where the pointer was last
    juce::ModifierKeys lastModifiers;
    WheelSteps wheelSteps;
    Events::Listener pollListener, brushListener;
};
} // namespace Zn::GUI
