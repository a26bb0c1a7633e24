#include "GUI/Popups/RoutingPicture.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

juce::String text (const char* utf8)
{
    return juce::String::fromUTF8 (utf8);
}
} // namespace

RoutingPicture::RoutingPicture (AssetScheme::Canvas& canvas) : Element (canvas, "RoutingPicture")
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false); // the steps say the same
}

void RoutingPicture::show (const RoutingCase& newCase)
{
    shown = &newCase;
    repaint();
}

void RoutingPicture::schemeChanged()
{
    nameFont = getCanvas().fontOf ("FontBody", AssetScheme::Cut::bold);
    detailFont = getCanvas().fontOf ("FontSmall");
}

void RoutingPicture::paint (juce::Graphics& g)
{
    const auto area = getLocalBounds().toFloat();
    g.setColour (schemeColour ("Inset"));
    g.fillRoundedRectangle (area, getCanvas().cornerOf ("PictureCorner", area));

    constexpr auto boxPart = 0.222f, gapPart = 0.115f, heightPart = 0.36f; // of the picture
    const auto stroke = std::max (1.0f, getCanvas().pixelsOf ("ThinnerStroke"));
    auto box = juce::Rectangle<float> (boxPart * area.getWidth(), heightPart * area.getHeight())
                   .withCentre (area.getCentre());
    box.translate (-(boxPart + gapPart) * area.getWidth(), 0.0f);

    for (std::size_t index = 0; index < shown->boxes.size(); ++index)
    {
        const auto& [name, detail, colourName] = shown->boxes[index];
        const auto corner = getCanvas().cornerOf ("NoteCorner", box) / 2.0f;
        g.setColour (schemeColour ("Card"));
        g.fillRoundedRectangle (box, corner);
        g.setColour (schemeColour (colourName));
        g.drawRoundedRectangle (box.reduced (stroke / 2.0f), corner, stroke);

        auto words = box.withSizeKeepingCentre (box.getWidth(),
                                                1.3f * (nameFont.getHeight() + detailFont.getHeight()));
        g.setColour (schemeColour ("Text"));
        g.setFont (nameFont);
        g.drawText (name, words.removeFromTop (words.getHeight() / 2.0f), juce::Justification::centred, true);
        g.setColour (schemeColour ("TextSecondary"));
        g.setFont (detailFont);
        g.drawText (detail, words, juce::Justification::centred, true);

        const auto gap = juce::Rectangle<float> (gapPart * area.getWidth(), box.getHeight())
                             .withPosition (box.getRight(), box.getY());
        box.translate ((boxPart + gapPart) * area.getWidth(), 0.0f);

        if (index == shown->arrows.size())
            break;

        const auto line = gap.reduced (gap.getWidth() * 0.12f, 0.0f);
        const auto y = gap.getCentreY();
        const auto head = line.getWidth() * 0.25f;
        juce::Path arrow;
        arrow.startNewSubPath (line.getX(), y);
        arrow.lineTo (line.getRight(), y);
        arrow.startNewSubPath (line.getRight() - head, y - head / 2.0f);
        arrow.lineTo (line.getRight(), y);
        arrow.lineTo (line.getRight() - head, y + head / 2.0f);

        const auto isAudio = std::string_view (shown->arrows[index]) == "Audio";
        g.setColour (schemeColour (isAudio ? "Sound" : "Midi"));
        g.strokePath (arrow,
                      juce::PathStrokeType (1.5f * stroke,
                                            juce::PathStrokeType::curved,
                                            juce::PathStrokeType::rounded));
        g.setColour (schemeColour ("TextSecondary"));
        g.setFont (detailFont);
        g.drawText (
            shown->arrows[index],
            gap.withBottom (y - head / 2.0f).removeFromBottom (detailFont.getHeight()).expanded (head, 0.0f),
            juce::Justification::centred,
            false);
    }
}

//======================================================================================================================
RoutingSteps::RoutingSteps (AssetScheme::Canvas& canvas) : Element (canvas, "RoutingSteps")
{
    setInterceptsMouseClicks (false, false);
}

void RoutingSteps::show (const RoutingCase& newCase)
{
    shown = &newCase;
    const auto inset = getCanvas().pixelsOf ("PopupInset");
    const auto font = getCanvas().fontOf ("FontBody");
    juce::StringArray spoken;
    lines.clear();

    for (const auto* step : shown->steps)
        if (step != nullptr)
        {
            juce::AttributedString words;
            words.append (text (step), font, schemeColour ("Text"));
            words.setLineSpacing (0.4f * font.getHeight());
            lines.emplace_back().createLayout (words, float (getWidth()) - 3.0f * inset);
            spoken.add (text (step));
        }

    setDescription (spoken.joinIntoString (" "));
    repaint();
}

void RoutingSteps::schemeChanged()
{
    numberFont = getCanvas().fontOf ("FontSmall", AssetScheme::Cut::bold);
    show (*shown);
}

void RoutingSteps::paint (juce::Graphics& g)
{
    const auto inset = getCanvas().pixelsOf ("PopupInset");
    const auto side = 1.8f * inset;
    auto area = getLocalBounds().toFloat();
    auto number = 0;

    for (const auto& line : lines)
    {
        auto place = area.removeFromTop (std::max (line.getHeight(), side));
        const auto circle = place.removeFromLeft (3.0f * inset).withSize (side, side);

        g.setColour (schemeColour ("Control"));
        g.fillEllipse (circle);
        g.setColour (schemeColour ("Text"));
        g.setFont (numberFont);
        g.drawText (juce::String (++number), circle, juce::Justification::centred, false);

        line.draw (g, place.withTrimmedTop (std::max (0.0f, (side - line.getHeight()) / 2.0f)));
        area.removeFromTop (0.8f * inset);
    }
}
} // namespace Zn::GUI
