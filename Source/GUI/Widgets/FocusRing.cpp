#include "GUI/Widgets/FocusRing.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
namespace
{
struct Ring : juce::FocusOutline::OutlineWindowProperties
{
    explicit Ring (const AssetScheme::Canvas& canvasToUse) : canvas (canvasToUse) {}

    juce::Rectangle<int> getOutlineBounds (juce::Component& component) override
    {
        const auto distance = canvas.pixelsOf ("FocusDistance") + canvas.pixelsOf ("ThinStroke");
        const auto bounds = component.getScreenBounds().expanded (juce::roundToInt (distance));
        const auto* const parent = component.getParentComponent(); // which cuts off what lies outside of it
        return parent != nullptr ? bounds.getIntersection (parent->getScreenBounds()) : bounds;
    }

    void drawOutline (juce::Graphics& g, int width, int height) override
    {
        const auto stroke = canvas.pixelsOf ("ThinStroke");
        const auto area = juce::Rectangle<int> (width, height).toFloat().reduced (stroke / 2.0f);

        g.setColour (AssetScheme::Base::get().colourOf ("Focus"));
        g.drawRoundedRectangle (area, canvas.cornerOf ("ControlCorner", area), stroke);
    }

    const AssetScheme::Canvas& canvas;
};
} // namespace

FocusRing::FocusRing (juce::Component& component, const EditorContext& contextToUse)
    : owner (component), context (contextToUse)
{}

bool FocusRing::isShownFor (juce::Component::FocusChangeType cause, const EditorContext& context)
{
    const auto isMoved = cause == juce::Component::focusChangedDirectly && context.keysInUse
                         && ! juce::ModifierKeys::getCurrentModifiers().isAnyMouseButtonDown();

    return isMoved || cause == juce::Component::focusChangedByTabKey;
}

void FocusRing::focusGained (juce::Component::FocusChangeType cause)
{
    if (isShownFor (cause, context))
        show();
}

void FocusRing::show()
{
    if (isShown() || ! owner.isShowing() || ! owner.hasKeyboardFocus (true)) // the key may have moved it away
        return;

    outline = std::make_unique<juce::FocusOutline> (std::make_unique<Ring> (context.canvas));
    outline->setOwner (&owner);
}
} // namespace Zn::GUI
