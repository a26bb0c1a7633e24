#include "GUI/Editor/Cards.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/Card.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

int insetOf (const AssetScheme::Canvas& canvas)
{
    return juce::roundToInt (canvas.pixelsOf ("PopupInset"));
}

juce::TextLayout
layOut (const juce::String& text, const juce::Font& font, std::string_view colourName, float maximumWidth)
{
    juce::AttributedString words;
    words.append (text, font, colour (colourName));

    juce::TextLayout layout;
    layout.createLayout (words, maximumWidth);
    return layout;
}

int widthOf (const juce::TextLayout& layout)
{
    return static_cast<int> (std::ceil (layout.getWidth())) + 1;
}
} // namespace

//======================================================================================================================
TooltipCard::TooltipCard (const AssetScheme::Canvas& canvasToUse) : canvas (canvasToUse)
{
    setInterceptsMouseClicks (false, false);
}

void TooltipCard::setText (const TooltipText& newText)
{
    const auto inset = insetOf (canvas);
    const auto widest = float (canvas.boundsOf ("Tooltip").getWidth() - 2 * inset);
    const auto title = newText.value.isEmpty() ? newText.title : newText.title + ": " + newText.value;

    shortcut = newText.shortcut;
    shortcutFont = canvas.fontOf ("FontSmall");
    const auto shortcutWidth =
        shortcut.isEmpty() ? 0 : juce::roundToInt (shortcutFont.getStringWidthFloat (shortcut)) + inset;

    heading = layOut (title,
                      canvas.fontOf ("FontBody", AssetScheme::Cut::bold),
                      "Text",
                      widest - float (shortcutWidth));
    help = layOut (newText.help, canvas.fontOf ("FontSmall"), "TextSecondary", widest);

    const auto gap = newText.help.isEmpty() ? 0 : inset / 2;
    const auto width =
        std::max (widthOf (heading) + shortcutWidth, newText.help.isEmpty() ? 0 : widthOf (help));
    const auto height = juce::roundToInt (heading.getHeight() + help.getHeight()) + gap;

    setTitle (title);
    setHelpText (newText.help);
    setSize (width + 2 * inset, height + 2 * inset);
    repaint();
}

void TooltipCard::place (juce::Rectangle<int> control, juce::Point<int> pointer, juce::Rectangle<int> editor)
{
    const auto gap = insetOf (canvas);
    const auto isLarge = control.getHeight() > 3 * getHeight();
    const auto around = isLarge ? juce::Rectangle<int> (pointer, pointer).expanded (0, gap) : control;

    auto bounds = getLocalBounds().withPosition (pointer.x - gap, around.getBottom() + gap / 2);

    if (bounds.getBottom() > editor.getBottom())
        bounds.setY (around.getY() - gap / 2 - bounds.getHeight());

    setBounds (bounds.constrainedWithin (editor.reduced (gap / 2)));
}

void TooltipCard::paint (juce::Graphics& g)
{
    paintCard (g, canvas, getLocalBounds());

    const auto area = getLocalBounds().reduced (insetOf (canvas)).toFloat();
    heading.draw (g, area.withHeight (heading.getHeight()));
    help.draw (g, area.withTop (area.getBottom() - help.getHeight()));

    g.setColour (colour ("TextQuiet"));
    g.setFont (shortcutFont);
    g.drawText (shortcut, area.withHeight (heading.getHeight()), juce::Justification::centredRight, false);
}

std::unique_ptr<juce::AccessibilityHandler> TooltipCard::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::tooltip);
}

//======================================================================================================================
ReadoutCard::ReadoutCard (const AssetScheme::Canvas& canvasToUse) : canvas (canvasToUse)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

void ReadoutCard::show (const juce::String& newName, const juce::String& newValue, juce::Point<int> pointer)
{
    const auto inset = insetOf (canvas);

    if (std::exchange (name, newName) != newName || std::exchange (value, newValue) != newValue)
    {
        nameFont = canvas.fontOf ("FontBody");
        valueFont = canvas.fontOf ("FontBody", AssetScheme::Cut::bold);
        nameWidth = name.isEmpty() ? 0 : nameFont.getStringWidth (name) + inset;
        repaint();
    }

    const auto width = nameWidth + valueFont.getStringWidth (value) + 2 * inset;
    const auto height = canvas.boundsOf ("ValueReadout").getHeight();
    const auto bounds =
        juce::Rectangle<int> (width, height).withPosition (pointer.x + inset, pointer.y - height - inset);
    setBounds (bounds.constrainedWithin (getParentComponent()->getLocalBounds()));
}

void ReadoutCard::paint (juce::Graphics& g)
{
    paintCard (g, canvas, getLocalBounds());
    auto area = getLocalBounds().reduced (insetOf (canvas), 0);

    g.setColour (colour ("TextSecondary"));
    g.setFont (nameFont);
    g.drawText (name, area.removeFromLeft (nameWidth), juce::Justification::centredLeft, false);

    g.setColour (colour ("Text"));
    g.setFont (valueFont);
    g.drawText (value, area, juce::Justification::centredRight, false);
}

//======================================================================================================================
MessageCard::MessageCard (const AssetScheme::Canvas& canvasToUse) : canvas (canvasToUse)
{
    addChildComponent (link);
}

void MessageCard::show (const juce::String& newText,
                        const juce::String& actionText,
                        CallbackFunc action,
                        CallbackFunc finished)
{
    text = newText;
    setTitle (newText);
    link.setButtonText (actionText);
    link.setVisible (actionText.isNotEmpty());
    link.onClick = [act = std::move (action), finish = std::move (finished)] {
        const auto chosen = act; // finishing may bring the next message, and with it another action
        finish();

        if (chosen != nullptr)
            chosen();
    };

    place();
}

void MessageCard::place()
{
    const auto inset = insetOf (canvas);
    const auto whole = canvas.boundsOf ("Message");
    font = canvas.fontOf ("FontBody");
    auto linkFont = canvas.fontOf ("FontBody", AssetScheme::Cut::bold);
    linkFont.setUnderline (true);
    link.setFont (linkFont, false);

    const auto linkWidth = link.isVisible() ? linkFont.getStringWidth (link.getButtonText()) + 2 * inset : 0;
    const auto width = font.getStringWidth (text) + linkWidth + 3 * inset;
    numLines = width > whole.getWidth() ? 2 : 1;

    const auto height = whole.getHeight() + (numLines - 1) * juce::roundToInt (font.getHeight());
    setBounds (whole.withSizeKeepingCentre (std::min (width, whole.getWidth()), whole.getHeight())
                   .withTop (whole.getBottom() - height));
    link.setBounds (getLocalBounds().withTrimmedRight (inset / 2).removeFromRight (linkWidth));
    repaint();
}

void MessageCard::paint (juce::Graphics& g)
{
    paintCard (g, canvas, getLocalBounds());

    const auto inset = insetOf (canvas);
    const auto area = getLocalBounds()
                          .withTrimmedLeft (inset + inset / 2)
                          .withRight (link.isVisible() ? link.getX() : getWidth() - inset);
    g.setColour (colour ("Text"));
    g.setFont (font);
    g.drawFittedText (text, area, juce::Justification::centredLeft, numLines, 1.0f);
}
} // namespace Zn::GUI
