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
    : MenuLook (canvasToUse), canvas (canvasToUse), listener (canvasToUse, [this] { update(); })
{
    update();
}

void EditorLook::update()
{
    font = canvas.fontOf ("FontBody");
    titleFont = canvas.fontOf ("FontTitle", AssetScheme::Cut::bold);

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

juce::Typeface::Ptr EditorLook::getTypefaceForFont (const juce::Font& wanted)
{
    if (wanted.getTypefaceName() != juce::Font::getDefaultSansSerifFontName())
        return MenuLook::getTypefaceForFont (wanted);

    const auto* const file = wanted.isBold() ? "Inter-Bold.otf" : "Inter-Regular.otf";
    return Binaries::StaticFontMap::get().getTypeface (file);
}

void EditorLook::paintField (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour fill) const
{
    g.setColour (fill);
    g.fillRoundedRectangle (area, fieldCornerOf (canvas, area));
}

void EditorLook::drawButtonBackground (
    juce::Graphics& g, juce::Button& button, const juce::Colour&, bool isOver, bool isDown)
{
    constexpr auto lighter = 0.15f;
    const auto on = button.findColour (juce::TextButton::buttonOnColourId);
    const auto off = colour (isDown ? "ControlPressed" : isOver ? "ControlHover" : "Control");
    const auto fill = ! button.getToggleState() ? off : isOver ? on.brighter (lighter) : on;
    paintField (g, button.getLocalBounds().toFloat(), fill);
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
