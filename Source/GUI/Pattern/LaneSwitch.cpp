#include "GUI/Pattern/LaneSwitch.h"

#include "GUI/Widgets/RadioHandler.h"
#include "GUI/Widgets/ValueKeys.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
LaneSwitch::LaneSwitch (RollContext& contextToUse, std::string element, NoteValue valueToShow)
    : Control (contextToUse.editor, std::move (element))
    , roll (contextToUse)
    , value (valueToShow)
    , listener (contextToUse.tools.laneValue, [this] { follow(); })
{
    setWantsKeyboardFocus (isChosen());
}

void LaneSwitch::follow()
{
    setWantsKeyboardFocus (isChosen());
    repaint();
    RadioHandler::tellOfChange (*this);

    if (isChosen() && isShowing() && dynamic_cast<LaneSwitch*> (getCurrentlyFocusedComponent()) != nullptr)
        grabKeyboardFocus(); // from the other one
}

void LaneSwitch::schemeChanged()
{
    constexpr auto padOfText = 8.0f / 6.8f; // of a handle of the lane
    constexpr auto leastGap = 2.0f;         // pixels between bar and text
    const auto bar = barWidth();

    textArea = area()
                   .withTrimmedRight (padOfText * pixels ("LaneHandle"))
                   .withTrimmedLeft (2.0f * bar + std::max (0.5f * bar, leastGap));

    font = getCanvas().fontOf ("FontSmall");
    font.setHorizontalScale (
        std::min (1.0f, textArea.getWidth() / font.getStringWidthFloat (getText().label)));
}

float LaneSwitch::barWidth() const
{
    constexpr auto ofHandle = 0.44f;
    return std::round (ofHandle * pixels ("LaneHandle"));
}

void LaneSwitch::paintControl (juce::Graphics& g)
{
    constexpr auto barHeight = 0.6f; // of the switch
    const auto bar = barWidth();

    if (isChosen())
    {
        g.setColour (colour ("Pattern"));
        g.fillRoundedRectangle (juce::Rectangle<float> (bar, barHeight * area().getHeight())
                                    .withCentre ({ 1.5f * bar, area().getCentreY() }),
                                0.5f * bar);
    }

    const auto isBright = isChosen() || isMouseOver();
    paintText (g,
               getText().label,
               font,
               textArea,
               juce::Justification::centredRight,
               colour (isBright ? "Text" : "TextSecondary"));
}

void LaneSwitch::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (event.mods.isPopupMenu())
        return;

    choose();

    if (isShowing())
        grabKeyboardFocus();
}

bool LaneSwitch::keyPressed (const juce::KeyPress& key)
{
    if (const auto wish = ValueKey::of (key).wish;
        wish == ValueKey::Wish::stepUp || wish == ValueKey::Wish::stepAlong)
        roll.tools.laneValue.set (value == NoteValue::velocity ? NoteValue::chance : NoteValue::velocity);
    else if (isPressKey (key))
        choose();
    else
        return false;

    ring.keyPressed();
    return true;
}

std::unique_ptr<juce::AccessibilityHandler> LaneSwitch::createAccessibilityHandler()
{
    return std::make_unique<RadioHandler> (
        *this,
        [this] { return isChosen(); },
        [this] { choose(); });
}
} // namespace Zn::GUI
