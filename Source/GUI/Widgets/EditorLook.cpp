#include "GUI/Widgets/EditorLook.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/StaticFontMap.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

/** That of the other fields, but no rounder than a card where the field is tall. */
float fieldCornerOf (const AssetScheme::Canvas& canvas, juce::Rectangle<float> area)
{
    return std::min (canvas.cornerOf ("ControlCorner", area), canvas.pixelsOf ("PopupRadius"));
}

juce::LookAndFeel_V4::ColourScheme colourScheme()
{
    return { colour ("Window"),      colour ("Control"),    colour ("Popup"),
             colour ("ControlEdge"), colour ("Text"),       colour ("Choice"),
             colour ("Text"),        colour ("PopupHover"), colour ("Text") };
}
} // namespace

const juce::Identifier EditorLook::refused { "refused" };

EditorLook::EditorLook (AssetScheme::Canvas& canvasToUse)
    : canvas (canvasToUse)
    , tick ("check.svg")
    , more ("next.svg")
    , up ("up.svg")
    , down ("down.svg")
    , listener (canvasToUse, [this] { update(); })
{
    update();
}

void EditorLook::update()
{
    menuFont = canvas.fontOf ("FontBody");
    titleFont = canvas.fontOf ("FontTitle", AssetScheme::Cut::bold);
    quietFont = canvas.fontOf ("FontSmall");

    setColourScheme (colourScheme());

    const juce::Colour none;
    const auto accent = colour ("SoundDeep");

    // Fields draw their ground themselves: it has round corners, so that what is beneath shines through.
    setColour (juce::TextEditor::backgroundColourId, none);
    setColour (juce::TextEditor::textColourId, colour ("Text"));
    setColour (juce::TextEditor::highlightColourId, accent);
    setColour (juce::TextEditor::highlightedTextColourId, colour ("Text"));
    setColour (juce::CaretComponent::caretColourId, colour ("Text"));
    setColour (juce::PopupMenu::backgroundColourId, none);
    setColour (juce::ListBox::backgroundColourId, none);
    setColour (juce::DirectoryContentsDisplayComponent::highlightColourId, accent);
    setColour (juce::HyperlinkButton::textColourId, colour ("Pattern"));
}

juce::Typeface::Ptr EditorLook::getTypefaceForFont (const juce::Font& font)
{
    if (font.getTypefaceName() != juce::Font::getDefaultSansSerifFontName())
        return LookAndFeel_V4::getTypefaceForFont (font);

    const auto* const file = font.isBold() ? "Inter-Bold.otf" : "Inter-Regular.otf";
    return Binaries::StaticFontMap::get().getTypeface (file);
}

//======================================================================================================================
float EditorLook::menuItemInset() const
{
    return canvas.pixelsOf ("MenuItemInset");
}

int EditorLook::getPopupMenuBorderSize()
{
    return juce::roundToInt (canvas.pixelsOf ("MenuBorder"));
}

void EditorLook::getIdealPopupMenuItemSize (
    const juce::String& text, bool isSeparator, int, int& idealWidth, int& idealHeight)
{
    constexpr auto separatorPart = 3; // of a line's height
    idealHeight = juce::roundToInt (canvas.pixelsOf ("MenuItemHeight"));

    auto width = 0;

    for (const auto& line : juce::StringArray::fromLines (text))
        width = std::max (width, menuFont.getStringWidth (line));

    // a column in front for ticks and icons, one behind for the arrow of a menu in the menu
    idealWidth = width + 2 * juce::roundToInt (menuItemInset()) + 2 * idealHeight;

    if (isSeparator)
        idealHeight /= separatorPart;
}

void EditorLook::drawPopupMenuBackground (juce::Graphics& g, int width, int height)
{
    paintCard (g, canvas, { width, height });
}

void EditorLook::drawPopupMenuBackgroundWithOptions (juce::Graphics& g,
                                                     int width,
                                                     int height,
                                                     const juce::PopupMenu::Options& options)
{
    if (options.getParentComponent() == nullptr) // a window, which may not be able to have round corners
        g.fillAll (colour ("Popup"));

    drawPopupMenuBackground (g, width, height);
}

void EditorLook::drawPopupMenuItem (juce::Graphics& g,
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
    auto line = area.toFloat();

    if (isSeparator)
    {
        const auto stroke = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
        g.setColour (colour ("ControlEdge"));
        g.fillRect (line.reduced (menuItemInset(), 0.0f)
                        .withSizeKeepingCentre (line.getWidth() - 2.0f * menuItemInset(), stroke));
        return;
    }

    if (isHighlighted && isActive)
    {
        g.setColour (colour ("PopupHover"));
        g.fillRoundedRectangle (line, canvas.cornerOf ("ControlCorner", line));
    }

    const auto usual = textColour != nullptr ? *textColour : colour ("Text");
    const auto ink = isActive ? usual : colour ("TextDisabled");
    const auto side = menuFont.getHeight();
    const auto square = [side] (juce::Rectangle<float> place) {
        return place.withSizeKeepingCentre (side, side);
    };

    line.reduce (menuItemInset(), 0.0f);

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
        line.removeFromLeft (menuItemInset() / 2.0f);
    }

    if (shortcut.isNotEmpty())
    {
        g.setColour (isActive ? colour ("TextSecondary") : ink);
        g.setFont (quietFont);
        g.drawText (shortcut, line, juce::Justification::centredRight, false);
    }

    g.setColour (ink);
    g.setFont (menuFont);
    g.drawText (text, line, juce::Justification::centredLeft, true);
}

void EditorLook::drawPopupMenuSectionHeader (juce::Graphics& g,
                                             const juce::Rectangle<int>& area,
                                             const juce::String& text)
{
    const auto inset = menuItemInset();
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

void EditorLook::drawPopupMenuUpDownArrow (juce::Graphics& g, int width, int height, bool isUp)
{
    const juce::Rectangle<int> area (width, height);
    (isUp ? up : down).paint (g, area.toFloat(), colour ("TextSecondary"));
}

void EditorLook::preparePopupMenuWindow (juce::Component& window)
{
    std::erase_if (menuShadows, [] (const auto& shadow) { return ! shadow->isNeeded(); });

    if (window.getParentComponent() == nullptr)
        return;

    window.setOpaque (false); // round corners, also where windows could have none
    menuShadows.push_back (std::make_unique<CardShadow> (window, canvas));
}

//======================================================================================================================
void EditorLook::paintField (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour fill) const
{
    g.setColour (fill);
    g.fillRoundedRectangle (area, fieldCornerOf (canvas, area));
}

void EditorLook::drawButtonBackground (
    juce::Graphics& g, juce::Button& button, const juce::Colour&, bool isOver, bool isDown)
{
    const auto* const fill = isDown ? "ControlPressed" : isOver ? "ControlHover" : "Control";
    paintField (g, button.getLocalBounds().toFloat(), colour (fill));
}

void EditorLook::drawComboBox (
    juce::Graphics& g, int width, int height, bool isDown, int, int, int, int, juce::ComboBox& box)
{
    auto area = juce::Rectangle<int> (width, height).toFloat();
    const auto isOver = box.isEnabled() && box.isMouseOver (true);
    paintField (g, area, colour (isDown ? "ControlPressed" : isOver ? "ControlHover" : "Control"));

    const auto side = canvas.pixelsOf ("IconSizeSmall");
    area.removeFromRight (canvas.pixelsOf ("ControlInset"));
    down.paint (g,
                area.removeFromRight (side).withSizeKeepingCentre (side, side),
                colour (box.isEnabled() ? "TextSecondary" : "TextDisabled"));
}

void EditorLook::drawTickBox (juce::Graphics& g,
                              juce::Component&,
                              float x,
                              float y,
                              float width,
                              float height,
                              bool isTicked,
                              bool isEnabled,
                              bool,
                              bool)
{
    const juce::Rectangle<float> area (x, y, width, height);
    paintField (g, area, colour ("Control"));

    if (isTicked)
        tick.paint (g, area, colour (isEnabled ? "Pattern" : "TextDisabled"));
}

void EditorLook::fillTextEditorBackground (juce::Graphics& g, int width, int height, juce::TextEditor&)
{
    paintField (g, juce::Rectangle<int> (width, height).toFloat(), colour ("Inset"));
}

void EditorLook::drawTextEditorOutline (juce::Graphics& g, int width, int height, juce::TextEditor& field)
{
    const auto isFocused = field.hasKeyboardFocus (true) && ! field.isReadOnly();
    const auto isRefused = field.getProperties()[refused];
    const auto stroke =
        std::max (1.0f, canvas.pixelsOf (isFocused || isRefused ? "ThinnerStroke" : "HairlineStroke"));
    const auto area = juce::Rectangle<int> (width, height).toFloat();

    g.setColour (colour (isRefused ? "Danger" : isFocused ? "Focus" : "ControlEdge"));
    g.drawRoundedRectangle (area.reduced (stroke / 2.0f), fieldCornerOf (canvas, area), stroke);
}

//======================================================================================================================
void EditorLook::drawScrollbar (juce::Graphics& g,
                                juce::ScrollBar&,
                                int x,
                                int y,
                                int width,
                                int height,
                                bool isVertical,
                                int thumbStart,
                                int thumbSize,
                                bool isOver,
                                bool isDown)
{
    const juce::Rectangle<int> bar (x, y, width, height);
    const auto thumb = isVertical ? bar.withY (thumbStart).withHeight (thumbSize)
                                  : bar.withX (thumbStart).withWidth (thumbSize);
    const auto area = thumb.toFloat().reduced (1.0f);

    g.setColour (colour (isDown ? "TextQuiet" : isOver ? "TextDisabled" : "ControlEdge"));
    g.fillRoundedRectangle (area, std::min (area.getWidth(), area.getHeight()) / 2.0f);
}

int EditorLook::getDefaultScrollbarWidth()
{
    return juce::roundToInt (canvas.pixelsOf ("MenuItemInset"));
}
} // namespace Zn::GUI
