#include "GUI/Widgets/Caption.h"

#include "GUI/Widgets/TextLine.h"

#include <algorithm>

namespace Zn::GUI
{
Caption::Caption (Options optionsToUse) : options (std::move (optionsToUse))
{
    if (options.icon.isNotEmpty())
        icon.emplace (options.icon);
}

void Caption::setText (const juce::String& newText)
{
    if (options.text == newText)
        return;

    options.text = newText;
    textWidth = font.getStringWidthFloat (options.text);
    arrange();
}

void Caption::setIcon (const juce::String& newIcon)
{
    if (options.icon == newIcon)
        return;

    options.icon = newIcon;
    icon.emplace (newIcon);
}

void Caption::layOut (const AssetScheme::Canvas& canvas, juce::Rectangle<float> newArea)
{
    area = newArea;
    font = canvas.fontOf (options.font, options.cut);
    iconPixels = canvas.pixelsOf (options.iconSize);
    gap = canvas.pixelsOf ("CaptionGap");
    inset = canvas.pixelsOf ("ControlInset");
    textWidth = font.getStringWidthFloat (options.text);
    arrange();
}

float Caption::getWidth() const noexcept
{
    const auto both = icon && options.text.isNotEmpty();
    return (icon ? iconPixels : 0.0f) + (both ? gap : 0.0f) + textWidth;
}

void Caption::arrange()
{
    const juce::Rectangle<float> square { iconPixels, iconPixels };

    if (options.arrangement == Arrangement::stacked)
    {
        const auto line = font.getHeight();
        const auto block = area.withSizeKeepingCentre (area.getWidth(), iconPixels + gap + line);
        iconArea = square.withCentre ({ area.getCentreX(), block.getY() + iconPixels / 2.0f });
        textArea = block.withTop (block.getBottom() - line);
        return;
    }

    const auto width = std::min (getWidth(), area.getWidth());
    auto row = options.arrangement == Arrangement::centred
                   ? area.withSizeKeepingCentre (width, area.getHeight())
                   : area.withWidth (width);

    if (icon)
    {
        iconArea = square.withCentre ({ row.getX() + iconPixels / 2.0f, row.getCentreY() });
        row.removeFromLeft (iconPixels + gap);
    }

    textArea = row;
}

void Caption::paint (juce::Graphics& g, juce::Colour iconColour, juce::Colour textColour)
{
    if (icon)
        icon->paint (g, iconArea, iconColour);

    if (options.text.isEmpty())
        return;

    paintTextLine (g,
                   options.text,
                   font,
                   textArea,
                   options.arrangement == Arrangement::stacked ? juce::Justification::centred
                                                               : juce::Justification::centredLeft,
                   textColour);
}
} // namespace Zn::GUI
