#include "GUI/Browser/TextField.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
TextField::TextField (AssetScheme::Canvas& canvas, std::string element, const juce::String& iconFile)
    : Element (canvas, std::move (element))
{
    if (iconFile.isNotEmpty())
        icon.emplace (iconFile);

    setSelectAllWhenFocused (true);
    setEscapeAndReturnKeysConsumed (false);
}

void TextField::setPlaceholder (const juce::String& newPlaceholder)
{
    if (std::exchange (placeholder, newPlaceholder) != newPlaceholder)
        repaint();
}

bool TextField::keyPressed (const juce::KeyPress& key)
{
    return (onKey != nullptr && onKey (key)) || TextEditor::keyPressed (key);
}

void TextField::paint (juce::Graphics& g)
{
    TextEditor::paint (g);

    if (icon)
        icon->paint (g, iconArea, AssetScheme::Base::get().colourOf ("TextSecondary"));

    if (isEmpty())
    {
        g.setColour (AssetScheme::Base::get().colourOf ("TextQuiet"));
        g.setFont (font);
        g.drawText (placeholder, textArea, juce::Justification::centredLeft, true);
    }
}

void TextField::schemeChanged()
{
    const auto& canvas = getCanvas();
    font = canvas.fontOf ("FontBody");
    textArea = getLocalBounds().toFloat();
    textArea.reduce (canvas.pixelsOf ("ControlInset"), 0.0f);

    if (icon)
    {
        const auto size = canvas.pixelsOf ("IconSize");
        iconArea = textArea.removeFromLeft (size).withSizeKeepingCentre (size, size);
        textArea.removeFromLeft (canvas.pixelsOf ("CaptionGap"));
    }

    applyFontToAllText (font);
    setIndents (juce::roundToInt (textArea.getX()), 0);
    setJustification (juce::Justification::centredLeft);
}
} // namespace Zn::GUI
