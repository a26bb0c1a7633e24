#include "GUI/Widgets/Card.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
float cornerOf (const AssetScheme::Canvas& canvas, juce::Rectangle<float> area)
{
    return std::max (canvas.cornerOf ("PopupCorner", area), canvas.pixelsOf ("PopupRadius"));
}
} // namespace

void paintCard (juce::Graphics& g, const AssetScheme::Canvas& canvas, juce::Rectangle<int> area)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto stroke = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
    const auto bounds = area.toFloat();
    const auto corner = cornerOf (canvas, bounds);

    g.setColour (scheme.colourOf ("ControlEdge"));
    g.fillRoundedRectangle (bounds, corner);
    g.setColour (scheme.colourOf ("Popup"));
    g.fillRoundedRectangle (bounds.reduced (stroke), corner - stroke);
}

CardShadow::CardShadow (juce::Component& cardToFollow, const AssetScheme::Canvas& canvasToUse)
    : card (&cardToFollow), canvas (canvasToUse)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
    setAlwaysOnTop (card->isAlwaysOnTop());
    card->getParentComponent()->addChildComponent (this);
    card->addComponentListener (this);
    follow();
}

CardShadow::~CardShadow()
{
    if (card != nullptr)
        card->removeComponentListener (this);
}

void CardShadow::paint (juce::Graphics& g)
{
    if (card == nullptr)
        return;

    const juce::DropShadow shadow (AssetScheme::Base::get().colourOf ("PopupShadow"),
                                   juce::roundToInt (canvas.pixelsOf ("ShadowRadius")),
                                   { 0, juce::roundToInt (canvas.pixelsOf ("ShadowOffset")) });
    const auto area = getLocalArea (card->getParentComponent(), card->getBounds());

    g.excludeClipRegion (area.reduced (juce::roundToInt (cornerOf (canvas, area.toFloat()))));
    shadow.drawForRectangle (g, area);
}

void CardShadow::follow()
{
    const auto margin =
        juce::roundToInt (canvas.pixelsOf ("ShadowRadius") + canvas.pixelsOf ("ShadowOffset"));

    setBounds (card->getBounds().expanded (margin));
    setVisible (card->isVisible());
    toBehind (card);
}

void CardShadow::componentMovedOrResized (juce::Component&, bool, bool)
{
    follow();
}

void CardShadow::componentVisibilityChanged (juce::Component&)
{
    follow();
}

void CardShadow::componentBroughtToFront (juce::Component&)
{
    follow();
}

void CardShadow::componentBeingDeleted (juce::Component&)
{
    card = nullptr;
    setVisible (false);
}

void fadeIn (juce::Component& card, CardShadow& shadow, const UserSettings& settings)
{
    if (! card.isShowing() || settings.get().reducedMotion)
        return;

    const auto milliseconds =
        juce::roundToInt (1000.0f * AssetScheme::Base::get().constantOf ("PopupFadeSeconds"));

    for (auto* part : std::initializer_list<juce::Component*> { &card, &shadow })
    {
        part->setAlpha (0.0f);
        juce::Desktop::getInstance()
            .getAnimator()
            .animateComponent (part, part->getBounds(), 1.0f, milliseconds, false, 1.0, 1.0);
    }
}
} // namespace Zn::GUI
