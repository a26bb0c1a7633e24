#include "GUI/Widgets/MenuLook.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

MenuLook::MenuLook (AssetScheme::Canvas& canvasToUse)
    : canvas (canvasToUse), listener (canvasToUse, [this] { makeFonts(); })
{
    makeFonts();
}

void MenuLook::makeFonts()
{
    font = canvas.fontOf ("FontBody");
    titleFont = canvas.fontOf ("FontTitle", AssetScheme::Cut::bold);
    quietFont = canvas.fontOf ("FontSmall");
}

float MenuLook::itemInset() const
{
    return canvas.pixelsOf ("MenuItemInset");
}

int MenuLook::getPopupMenuBorderSize()
{
    return juce::roundToInt (canvas.pixelsOf ("MenuBorder"));
}

void MenuLook::getIdealPopupMenuItemSize (
    const juce::String& text, bool isSeparator, int, int& idealWidth, int& idealHeight)
{
    constexpr auto separatorPart = 3; // of a line's height
    idealHeight = juce::roundToInt (canvas.pixelsOf ("MenuItemHeight"));

    auto width = 0;

    for (const auto& line : juce::StringArray::fromLines (text))
        width = std::max (width, font.getStringWidth (line));

    // a column in front for ticks and icons, one behind for the arrow of a menu in the menu
    idealWidth = width + 2 * (juce::roundToInt (itemInset()) + getPopupMenuBorderSize()) + 2 * idealHeight;

    if (isSeparator)
        idealHeight /= separatorPart;
}

void MenuLook::drawPopupMenuBackground (juce::Graphics& g, int width, int height)
{
    paintCard (g, canvas, { width, height });
}

void MenuLook::drawPopupMenuBackgroundWithOptions (juce::Graphics& g,
                                                   int width,
                                                   int height,
                                                   const juce::PopupMenu::Options& options)
{
    if (options.getParentComponent() == nullptr) // a window, which may not be able to have round corners
        g.fillAll (colour ("Popup"));

    drawPopupMenuBackground (g, width, height);
}

void MenuLook::drawPopupMenuItem (juce::Graphics& g,
                                  const juce::Rectangle<int>& area,
                                  bool isSeparator,
                                  bool isActive,
                                  bool isHighlighted,
                                  bool isTicked,
                                  bool hasSubMenu,
                                  const juce::String& text,
                                  const juce::String& shortcut,
                                  const juce::Drawable* icon,
                                  const juce::Colour* textColour)
{
    auto line = area.reduced (getPopupMenuBorderSize(), 0).toFloat(); // as JUCE lays headings

    if (isSeparator)
    {
        const auto stroke = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
        g.setColour (colour ("ControlEdge"));
        g.fillRect (line.reduced (itemInset(), 0.0f)
                        .withSizeKeepingCentre (line.getWidth() - 2.0f * itemInset(), stroke));
        return;
    }

    if (isHighlighted && isActive)
    {
        g.setColour (colour ("PopupHover"));
        g.fillRoundedRectangle (line, canvas.cornerOf ("ControlCorner", line));
    }

    const auto usual = textColour != nullptr ? *textColour : colour ("Text");
    const auto ink = isActive ? usual : colour ("TextDisabled");
    const auto side = font.getHeight();
    const auto square = [side] (juce::Rectangle<float> place) {
        return place.withSizeKeepingCentre (side, side);
    };

    line.reduce (itemInset(), 0.0f);

    if (hasSubMenu)
        more.paint (g, square (line.removeFromRight (side)), ink);

    if (isTicked)
        tick.paint (g, square (line.removeFromRight (side)), colour ("Pattern"));

    if (icon != nullptr)
    {
        icon->drawWithin (g,
                          square (line.removeFromLeft (side)),
                          juce::RectanglePlacement::centred,
                          isActive ? 1.0f : 0.5f);
        line.removeFromLeft (itemInset() / 2.0f);
    }

    if (shortcut.isNotEmpty())
    {
        g.setColour (isActive ? colour ("TextSecondary") : ink);
        g.setFont (quietFont);
        g.drawText (shortcut, line, juce::Justification::centredRight, false);
    }

    g.setColour (ink);
    g.setFont (font);
    g.drawText (text, line, juce::Justification::centredLeft, true);
}

void MenuLook::drawPopupMenuSectionHeader (juce::Graphics& g,
                                           const juce::Rectangle<int>& area,
                                           const juce::String& text)
{
    const auto inset = itemInset();
    auto place = area.toFloat().reduced (inset, 0.0f);
    const auto second = text.fromFirstOccurrenceOf ("\n", false, false);

    const auto stroke = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
    const auto gap = inset / 2.0f;
    g.setColour (colour ("ControlEdge"));
    g.fillRect (area.toFloat().removeFromBottom (gap).withHeight (stroke));
    place.removeFromBottom (gap);

    if (second.isNotEmpty())
    {
        g.setColour (colour ("TextSecondary"));
        g.setFont (quietFont);
        g.drawText (second,
                    place.removeFromBottom (quietFont.getHeight()),
                    juce::Justification::centredLeft,
                    true);
    }

    g.setColour (colour ("Text"));
    g.setFont (titleFont);
    g.drawText (text.upToFirstOccurrenceOf ("\n", false, false),
                place,
                juce::Justification::centredLeft,
                true);
}

void MenuLook::drawPopupMenuUpDownArrow (juce::Graphics& g, int width, int height, bool isUp)
{
    const juce::Rectangle<int> area (width, height);
    (isUp ? up : down).paint (g, area.toFloat(), colour ("TextSecondary"));
}

void MenuLook::preparePopupMenuWindow (juce::Component& window)
{
    std::erase_if (shadows, [] (const auto& shadow) { return ! shadow->isNeeded(); });

    if (window.getParentComponent() == nullptr)
        return;

    window.setOpaque (false); // round corners, also where windows could have none
    shadows.push_back (std::make_unique<CardShadow> (window, canvas));
}
} // namespace Zn::GUI
