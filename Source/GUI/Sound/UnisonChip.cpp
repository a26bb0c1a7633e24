#include "GUI/Sound/UnisonChip.h"

#include <utility>

namespace Zn::GUI
{
UnisonChip::UnisonChip (EditorContext& contextToUse, std::string element, CallbackFunc onClickToUse)
    : Control (contextToUse, std::move (element)), onClick (std::move (onClickToUse))
{
    setWantsKeyboardFocus (false); // the keyboard goes to the setting itself
    setMouseCursor (juce::MouseCursor::PointingHandCursor);
}

void UnisonChip::schemeChanged()
{
    font = context.canvas.fontOf ("FontSmall");
    poll();
}

void UnisonChip::poll()
{
    const auto current = context.state().params.sound.unison.get();

    if (std::exchange (numVoices, current) == current)
        return;

    text = juce::String::charToString (0xd7) + " " + juce::String (numVoices);
    setVisible (numVoices > 1);
    repaint();
}

void UnisonChip::paintControl (juce::Graphics& g)
{
    paintText (g, text, font, area(), juce::Justification::centredRight, surface ("TextSecondary"));
}

void UnisonChip::mouseDown (const juce::MouseEvent& event)
{
    if (! event.mods.isPopupMenu())
        onClick();
}

std::unique_ptr<juce::AccessibilityHandler> UnisonChip::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::button,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press, onClick));
}
} // namespace Zn::GUI
