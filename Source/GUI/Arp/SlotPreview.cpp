#include "GUI/Arp/SlotPreview.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto fewestRows = 5;        // a pattern of few rows does not get higher boxes than this leaves
constexpr auto dimmed = 0.7f;         // opacity of a pattern that does not play
constexpr auto quietest = 0.4f;       // opacity of a note without velocity
constexpr auto disabledNote = 0.25f;  // opacity
constexpr auto thinnestNote = 0.6f;   // part of its row
constexpr auto cornerOfNote = 0.016f; // part of the picture's width

std::string elementOf (int slotIndex)
{
    return "Slot" + std::to_string (slotIndex + 1) + "Preview";
}

/** The rows that a picture shows, around those that have notes. */
juce::Range<int> rowsOf (const std::vector<Sequencer::TimedNote>& steps)
{
    juce::Range<int> rows { steps.front().event.noteNum, steps.front().event.noteNum + 1 };

    for (const auto& step : steps)
        rows = rows.getUnionWith ({ step.event.noteNum, step.event.noteNum + 1 });

    const auto missing = std::max (0, fewestRows - rows.getLength());
    return { rows.getStart() - missing / 2, rows.getEnd() + (missing - missing / 2) };
}

float opacityOf (const Sequencer::TimedNote& step)
{
    const auto velocity = std::clamp (static_cast<float> (step.event.velocity), 0.0f, 1.0f);
    return step.enabled ? quietest + (1.0f - quietest) * velocity : disabledNote;
}
} // namespace

SlotPreview::SlotPreview (AssetScheme::Canvas& canvasToLieOn,
                          int slotIndex,
                          const Sequencer::PatternSlot& slotToShow)
    : Element (canvasToLieOn, elementOf (slotIndex)), slot (slotToShow), steps (slotToShow.pattern.steps)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

bool SlotPreview::update()
{
    if (steps == slot.pattern.steps)
        return false;

    steps = slot.pattern.steps;
    image = {};
    repaint();
    return true;
}

void SlotPreview::setBright (bool shouldBeBright)
{
    if (std::exchange (isBright, shouldBeBright) != shouldBeBright)
        repaint();
}

void SlotPreview::paint (juce::Graphics& g)
{
    if (steps.empty())
        return;

    const auto scale = g.getInternalContext().getPhysicalPixelScaleFactor();

    if (image.isNull() || ! juce::approximatelyEqual (scale, imageScale))
        render (scale);

    g.setOpacity (isBright ? 1.0f : dimmed);
    g.drawImageTransformed (image, juce::AffineTransform::scale (1.0f / imageScale));
}

void SlotPreview::render (float scale)
{
    const auto deviceSize = [scale] (int size) {
        return std::max (1, int (std::ceil (float (size) * scale)));
    };

    imageScale = scale;
    image = { juce::Image::ARGB, deviceSize (getWidth()), deviceSize (getHeight()), true };

    juce::Graphics g (image);
    g.addTransform (juce::AffineTransform::scale (scale));

    const auto area = getLocalBounds().toFloat();
    const auto rows = rowsOf (steps);
    const auto rowHeight = area.getHeight() / float (rows.getLength());
    const auto gap = getCanvas().pixelsOf ("HairlineStroke");
    const auto noteHeight = std::max (rowHeight - gap, rowHeight * thinnestNote);
    const auto narrowest = 2.0f * gap;
    const auto corner = std::min (0.5f * noteHeight, cornerOfNote * area.getWidth());
    const auto colour = AssetScheme::Base::get().colourOf ("Pattern");

    for (const auto& step : steps)
    {
        const auto x = float (step.time.start) * area.getWidth();
        const auto y = float (rows.getEnd() - 1 - step.event.noteNum) * rowHeight;
        const auto width = std::max (narrowest, float (step.time.length) * area.getWidth() - gap);

        g.setColour (colour.withAlpha (opacityOf (step)));
        g.fillRoundedRectangle (x, y, std::min (width, area.getWidth() - x), noteHeight, corner);
    }
}
} // namespace Zn::GUI
