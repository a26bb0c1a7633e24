#include "GUI/Learn/LearnBar.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
namespace
{
constexpr auto title = "MIDI learn";
constexpr auto help =
    "Choose a pattern and play a key, or choose another control and press the sustain pedal. "
    "Right-click forgets.";
} // namespace

LearnBar::LearnBar (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "LearnBar")
    , context (contextToUse)
    , done (contextToUse,
            "LearnBarDone",
            { .text = "Done", .look = Button::Look::primary, .accent = "Midi" },
            [&learning = contextToUse.learning] { learning.setActive (false); })
{
    setTitle (title);
    setDescription (help);
    addAndMakeVisible (done);
}

void LearnBar::schemeChanged()
{
    const auto& sheet = context.canvas;
    titleFont = sheet.fontOf ("FontTitle", AssetScheme::Cut::bold);
    textFont = sheet.fontOf ("FontBody");

    const auto size = sheet.pixelsOf ("IconSizeLarge");
    const auto text = sheet.boundsIn (this, "LearnBarText").toFloat();
    const auto gap = 2.0f * sheet.pixelsOf ("ControlInset");

    iconArea =
        text.withLeft (0.0f).withRight (text.getX()).withTrimmedLeft (gap).withSizeKeepingCentre (size, size);
    titleArea = text.withWidth (titleFont.getStringWidthFloat (title));
    textArea = text.withLeft (titleArea.getRight() + gap);
}

void LearnBar::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto stroke = std::max (1, juce::roundToInt (context.canvas.pixelsOf ("HairlineStroke")));

    g.fillAll (scheme.colourOf ("MidiDeep"));
    g.setColour (scheme.colourOf ("Midi"));
    g.fillRect (getLocalBounds().removeFromBottom (stroke));
    icon.paint (g, iconArea, scheme.colourOf ("Midi"));

    g.setColour (scheme.colourOf ("Text"));
    g.setFont (titleFont);
    g.drawText (title, titleArea, juce::Justification::centredLeft, false);
    g.setFont (textFont);
    g.drawFittedText (help, textArea.toNearestInt(), juce::Justification::centredLeft, 1);
}
} // namespace Zn::GUI
