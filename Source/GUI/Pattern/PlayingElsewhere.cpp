#include "GUI/Pattern/PlayingElsewhere.h"

#include "GUI/Pattern/PlayPlace.h"

namespace Zn::GUI
{
PlayingElsewhere::PlayingElsewhere (EditorContext& contextToUse) : Control (contextToUse, "PlayingElsewhere")
{
    setVisible (false);
}

void PlayingElsewhere::poll()
{
    const auto place = PlayPlace::of (context.state());
    const auto newPlaying = place && place->slot != context.shownSlot.get() ? place->slot : -1;

    if (newPlaying == playing)
        return;

    playing = newPlaying;
    setVisible (playing >= 0);
    tellWhich();
    repaint();
}

void PlayingElsewhere::tellWhich()
{
    text = "Slot " + juce::String (playing + 1) + " plays";
    textWidth = font.getStringWidthFloat (text);
    setTitle (text);
}

void PlayingElsewhere::schemeChanged()
{
    font = getCanvas().fontOf ("FontSmall");
    setVisible (playing >= 0);
    tellWhich();

    const auto height = 0.6f * font.getHeight();
    triangle.clear();
    triangle.addTriangle (0.0f, -0.5f * height, 0.0f, 0.5f * height, 0.75f * height, 0.0f);
}

void PlayingElsewhere::paintControl (juce::Graphics& g)
{
    const auto pad = 0.5f * font.getHeight();
    const auto textArea = area().withTrimmedRight (pad);

    paintHover (g);
    paintText (g, text, font, textArea, juce::Justification::centredRight, colour ("TextSecondary"));

    const auto left = textArea.getRight() - textWidth - 2.0f * pad;
    g.setColour (colour ("Pattern"));
    g.fillPath (triangle, juce::AffineTransform::translation (left, area().getCentreY()));
}

void PlayingElsewhere::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (! event.mods.isPopupMenu())
        open();
}

bool PlayingElsewhere::keyPressed (const juce::KeyPress& key)
{
    if (! isPressKey (key))
        return false;

    open();
    return true;
}

void PlayingElsewhere::open()
{
    if (playing >= 0)
        context.shownSlot.set (playing);
}

std::unique_ptr<juce::AccessibilityHandler> PlayingElsewhere::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::button,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press, [this] { open(); }));
}
} // namespace Zn::GUI
