#include "GUI/Arp/SlotPreview.h"

#include "GUI/Widgets/StepsPicture.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto dimmed = 0.7f; // opacity of a pattern that does not play

std::string elementOf (int slotIndex)
{
    return "Slot" + std::to_string (slotIndex + 1) + "Preview";
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

    paintSteps (g, getCanvas(), getLocalBounds().toFloat(), steps);
}
} // namespace Zn::GUI
