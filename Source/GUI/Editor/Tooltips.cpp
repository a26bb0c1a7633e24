#include "GUI/Editor/Tooltips.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto textInterval = 200; // milliseconds: what is shown may change, but not with each poll

TooltipCard& addedTo (juce::Component& parent, TooltipCard& card)
{
    parent.addChildComponent (card);
    return card;
}

int delayOf (const juce::Component& owner) // milliseconds
{
    if (const auto own = dynamic_cast<const TooltipSource&> (owner).getTooltipDelay(); own > 0)
        return own;

    return juce::roundToInt (1000.0f * AssetScheme::Base::get().constantOf ("TooltipDelaySeconds"));
}
} // namespace

Tooltips::Tooltips (juce::Component& pageToWatch,
                    juce::Component& layerToUse,
                    const AssetScheme::Canvas& canvas,
                    const UserSettings& settingsToUse,
                    Events::Broadcaster& polls)
    : page (pageToWatch)
    , layer (layerToUse)
    , settings (settingsToUse)
    , card (canvas)
    , shadow (addedTo (layer, card), canvas)
    , pollListener (polls, [this] { poll(); })
{
    page.addMouseListener (this, true);
}

Tooltips::~Tooltips()
{
    page.removeMouseListener (this);
}

void Tooltips::follow (const juce::MouseEvent& event)
{
    const auto now = event.getEventRelativeTo (&layer).getPosition();

    if (std::exchange (lastPointer, now) != now)
        restsSince = juce::Time::getMillisecondCounter();
}

void Tooltips::poll()
{
    const auto mouse = juce::Desktop::getInstance().getMainMouseSource();
    auto* const under = mouse.getComponentUnderMouse();

    if (mouse.isDragging())
        pressed = under; // what has been clicked needs no explanation
    else if (under != pressed)
        pressed = nullptr;

    if (lastUnder != under)
    {
        lastUnder = under;
        restsSince = juce::Time::getMillisecondCounter();

        if (under != nullptr && ! page.isParentOf (under))
            lastPointer = layer.getLocalArea (under, under->getLocalBounds()).getCentre();
    }

    look (pressed == nullptr ? under : nullptr,
          lastPointer,
          int (juce::Time::getMillisecondCounter() - restsSince));
}

void Tooltips::look (juce::Component* underPointer, juce::Point<int> pointer, int restedMilliseconds)
{
    const auto isHere = underPointer != nullptr && layer.getTopLevelComponent()->isParentOf (underPointer);
    auto* owner = isHere && settings.get().tooltips ? underPointer : nullptr;

    while (owner != nullptr && dynamic_cast<const TooltipSource*> (owner) == nullptr)
        owner = owner->getParentComponent();

    const auto isShown = card.isVisible() && owner == explained;

    if (owner == nullptr || (! isShown && restedMilliseconds < delayOf (*owner)))
        return hide();

    const auto thisLook = restedMilliseconds / textInterval;

    if (std::exchange (lastLook, thisLook) == thisLook && isShown)
        return;

    const auto newText = dynamic_cast<const TooltipSource&> (*owner).getTooltipText();

    if (newText.title.isEmpty() && newText.help.isEmpty())
        return hide();

    if (isShown && newText == text)
        return;

    const auto comesUp = ! card.isVisible();
    const auto staysThere = isShown && newText.title == text.title;
    explained = owner;
    text = newText;
    card.setText (text);

    if (! staysThere)
        card.place (layer.getLocalArea (owner, owner->getLocalBounds()), pointer, layer.getLocalBounds());

    card.setVisible (true);
    card.toFront (false);

    if (comesUp)
        fadeIn (card, shadow, settings);
}
} // namespace Zn::GUI
