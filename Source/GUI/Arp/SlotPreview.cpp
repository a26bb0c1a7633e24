#include "GUI/Arp/SlotPreview.h"

#include "GUI/Widgets/StepsPicture.h"

#include <utility>

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
    : Element (canvasToLieOn, elementOf (slotIndex))
    , slot (slotToShow)
    , steps (slotToShow.pattern.steps)
    , picture ([this] (auto& g) { paintSteps (g, getCanvas(), getLocalBounds().toFloat(), steps); },
               juce::Image::ARGB)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

bool SlotPreview::update()
{
    if (steps == slot.pattern.steps)
        return false;

    steps = slot.pattern.steps;
    picture.invalidate();
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
    if (! steps.empty())
        picture.paint (g, getLocalBounds(), isBright ? 1.0f : dimmed);
}
} // namespace Zn::GUI
