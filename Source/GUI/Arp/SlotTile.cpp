#include "GUI/Arp/SlotTile.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <array>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto flashOpacity = 0.35f;
constexpr auto quietestPulse = 0.35f;       // opacity of the edge at the end of a breath
constexpr auto textInset = 1.45f;           // of the number, in insets of the picture
constexpr std::array dashes { 2.8f, 2.1f }; // in strokes

juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

struct TileAccessibility : juce::AccessibilityHandler
{
    TileAccessibility (SlotTile& tileToDescribe, const juce::AccessibilityActions& itsActions)
        : AccessibilityHandler (tileToDescribe, juce::AccessibilityRole::radioButton, itsActions)
        , tile (tileToDescribe)
    {}

    juce::String getTitle() const override { return tile.describe(); }

    juce::AccessibleState getCurrentState() const override
    {
        const auto state = AccessibilityHandler::getCurrentState().withCheckable();
        return tile.getLook().isShown ? state.withChecked() : state;
    }

    SlotTile& tile;
};
} // namespace

SlotTile::SlotTile (EditorContext& contextToUse, Owner& ownerToTell, int slotIndex)
    : Control (contextToUse, "Slot" + std::to_string (slotIndex + 1))
    , owner (ownerToTell)
    , index (slotIndex)
    , number (slotIndex + 1)
    , preview (contextToUse.canvas,
               slotIndex,
               contextToUse.state().patterns.getSlots()[static_cast<std::size_t> (slotIndex)])
{
    setMouseCursor (juce::MouseCursor::PointingHandCursor);
    addAndMakeVisible (preview);
}

bool SlotTile::setLook (const Look& newLook)
{
    if (look == newLook)
        return false;

    const auto before = describe();
    look = newLook;
    preview.setBright (look.plays);
    repaint();

    if (auto* handler = getAccessibilityHandler(); handler != nullptr && describe() != before)
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::titleChanged);

    return true;
}

void SlotTile::setProgress (double newProgress)
{
    const auto width = juce::roundToInt (juce::jlimit (0.0, 1.0, newProgress) * getWidth());
    const auto before = std::exchange (progressWidth, width);

    if (width == before)
        return;

    const auto [left, right] = std::minmax (before, width);
    repaint (progressBounds().withX (left).withWidth (right - left));
}

void SlotTile::setPulse (float newPulse)
{
    pulse = newPulse;
    repaint();
}

void SlotTile::patternChanged()
{
    const auto before = preview.getNumNotes();

    if (! preview.update())
        return;

    repaint();

    if (auto* handler = getAccessibilityHandler(); handler != nullptr && preview.getNumNotes() != before)
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::titleChanged);
}

void SlotTile::schemeChanged()
{
    Control::schemeChanged();
    numberFont = context.canvas.fontOf ("FontSmall", AssetScheme::Cut::bold);
    nextFont = context.canvas.fontOf ("FontSmall");

    const auto stroke = pixels ("ThinnerStroke");
    const auto corner = context.canvas.cornerOf ("PreviewBoxCorner", area());
    shape.clear();
    shape.addRoundedRectangle (area(), corner);

    juce::Path inner;
    inner.addRoundedRectangle (area().reduced (stroke / 2.0f), corner);
    const std::array lengths { dashes[0] * stroke, dashes[1] * stroke };
    pendingEdge.clear();
    juce::PathStrokeType (stroke).createDashedStroke (pendingEdge,
                                                      inner,
                                                      lengths.data(),
                                                      static_cast<int> (lengths.size()));
}

void SlotTile::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (! takeLearnPress (event))
        owner.tilePressed (*this, event);
}

bool SlotTile::keyPressed (const juce::KeyPress& key)
{
    ring.keyPressed();
    return owner.tileKeyPressed (*this, key);
}

void SlotTile::paintControl (juce::Graphics& g)
{
    g.setColour (surface (look.plays ? "PatternDeep" : "Card"));
    g.fillPath (shape);

    if (look.flashes)
    {
        g.setColour (colour ("Pattern").withAlpha (flashOpacity));
        g.fillPath (shape);
    }

    if (look.plays && progressWidth > 0)
    {
        const juce::Graphics::ScopedSaveState saved (g);
        g.reduceClipRegion (shape);
        g.setColour (colour ("Pattern"));
        g.fillRect (progressBounds().withWidth (progressWidth));
    }

    if (look.isPending)
        paintPendingEdge (g);

    if (g.clipRegionIntersects (getLocalBounds().withBottom (progressBounds().getY())))
        paintHead (g); // its text takes longer than all else, and mostly the progress alone has moved

    if (look.takesDrop)
    {
        const auto size = pixels ("SlotPlusIcon");
        plusIcon.paint (g,
                        juce::Rectangle<float> (size, size)
                            .withPosition (area().getBottomRight() - juce::Point (size, size)),
                        colour ("Pattern"));
    }
}

void SlotTile::paintHead (juce::Graphics& g)
{
    const auto picture = preview.getBounds().toFloat();
    const auto inset = textInset * picture.getX();
    const auto head =
        area().withBottom (picture.getY()).withTrimmedTop (pixels ("ThinStroke")).reduced (inset, 0.0f);

    paintText (g,
               number,
               numberFont,
               head,
               juce::Justification::centredLeft,
               colour (look.plays ? "Text" : "TextSecondary"));

    if (look.isPending)
        paintText (g, "next", nextFont, head, juce::Justification::centredRight, colour ("Pattern"));
    else if (look.plays)
        playIcon.paint (g,
                        head.withTrimmedLeft (head.getWidth() - pixels ("SlotPlayIcon")),
                        colour ("Pattern"));

    if (preview.isEmpty())
    {
        const auto size = pixels ("SlotPlusIcon");
        const auto centre = (area().getCentre() + picture.getCentre()) / 2.0f;
        plusIcon.paint (g,
                        juce::Rectangle<float> (size, size).withCentre (centre),
                        colour (look.plays ? "Pattern" : "TextDisabled"));
    }
}

void SlotTile::paintPendingEdge (juce::Graphics& g) const
{
    g.setColour (schemeColour ("Pattern").withAlpha (quietestPulse + (1.0f - quietestPulse) * pulse));
    g.fillPath (pendingEdge);
}

juce::Rectangle<int> SlotTile::progressBounds() const
{
    return getLocalBounds().removeFromBottom (juce::roundToInt (pixels ("SlotProgressHeight")));
}

juce::Rectangle<int> SlotTile::edgeBounds() const
{
    const auto outside = 2.0f * pixels ("DefaultStroke");
    return getBounds().expanded (juce::roundToInt (outside));
}

void SlotTile::paintEdge (juce::Graphics& g) const
{
    if (! look.isShown && ! look.takesDrop)
        return;

    const auto distance = pixels ("SlotEdgeDistance");
    const auto edge = getBounds().toFloat().expanded (distance);
    const auto corner = context.canvas.cornerOf ("PreviewBoxCorner", area()) + distance;

    g.setColour (schemeColour (look.takesDrop ? "Pattern" : "NoteSelected"));
    g.drawRoundedRectangle (edge, corner, pixels ("ThinnerStroke"));
}

TooltipText SlotTile::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.title = describe();
    return tooltip;
}

juce::String SlotTile::describe() const
{
    const auto numNotes = preview.getNumNotes();
    juce::String text = "Pattern " + number;

    if (look.plays)
        text << ", playing";

    if (look.isPending)
        text << ", next";

    if (numNotes == 0)
        return text + ", empty";

    return text << ", " << numNotes << (numNotes == 1 ? " note" : " notes");
}

std::unique_ptr<juce::AccessibilityHandler> SlotTile::createAccessibilityHandler()
{
    return std::make_unique<TileAccessibility> (
        *this,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press,
                                                [this] { owner.tileChosen (*this); }));
}
} // namespace Zn::GUI
