#include "GUI/Pattern/HeldChord.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Pattern/ChordName.h"

namespace Zn::GUI
{
HeldChord::HeldChord (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "HeldChord")
    , context (contextToUse)
    , namesListener (contextToUse.rowNames, [this] { refresh(); })
{
    setOpaque (true);
    setTitle ("Held chord");
    refresh();
}

void HeldChord::refresh()
{
    const auto& keys = context.rowNames.get().heldKeys;
    hasKeys = ! keys.isEmpty();
    const auto newText =
        hasKeys ? chordName (keys, context.editor.settings.get().middleC) : juce::String ("No keys");

    if (newText == text)
        return;

    text = newText;
    repaint();

    if (hasKeys && isShowing())
        context.editor.overlay.announce (text);
}

TooltipText HeldChord::getTooltipText() const
{
    return { .title = getTitle(), .value = text, .help = "The keys that feed the pattern.", .shortcut = {} };
}

void HeldChord::schemeChanged()
{
    bold = getCanvas().fontOf ("FontBody", AssetScheme::Cut::bold);
    regular = getCanvas().fontOf ("FontSmall");
}

void HeldChord::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    constexpr auto pad = 2, narrowest = 70; // percent, before the name is cut
    const auto line = std::max (1, juce::roundToInt (getCanvas().pixelsOf ("HairlineStroke")));

    g.fillAll (scheme.colourOf ("Inset"));
    g.setColour (scheme.colourOf ("Hairline"));
    g.fillRect (getLocalBounds().removeFromTop (line));
    g.fillRect (getLocalBounds().removeFromBottom (line));
    g.fillRect (getLocalBounds().removeFromRight (line));

    g.setColour (scheme.colourOf (hasKeys ? "Midi" : "TextSecondary"));
    g.setFont (hasKeys ? bold : regular);
    g.drawFittedText (text,
                      getLocalBounds().reduced (pad, 0),
                      juce::Justification::centred,
                      1,
                      0.01f * narrowest);
}

std::unique_ptr<juce::AccessibilityHandler> HeldChord::createAccessibilityHandler()
{
    struct Text : juce::AccessibilityTextValueInterface
    {
        explicit Text (const HeldChord& chordToTell) : chord (chordToTell) {}
        bool isReadOnly() const override { return true; }
        juce::String getCurrentValueAsString() const override { return chord.getText(); }
        void setValueAsString (const juce::String&) override {}
        const HeldChord& chord;
    };

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::staticText,
        juce::AccessibilityActions(),
        juce::AccessibilityHandler::Interfaces { std::make_unique<Text> (*this) });
}
} // namespace Zn::GUI
