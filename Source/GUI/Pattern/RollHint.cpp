#include "GUI/Pattern/RollHint.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto chordsToLearn = 10;
}

RollHint::RollHint (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "RollHint")
    , context (contextToUse)
    , hadKeys (! contextToUse.rowNames.get().heldKeys.isEmpty())
    , namesListener (contextToUse.rowNames, [this] { followKeys(); })
{
    setInterceptsMouseClicks (false, false);
    setBufferedToImage (true); // the play head runs over it
    appear (! hadKeys && context.editor.settings.get().chordsPlayed < chordsToLearn);
}

void RollHint::followKeys()
{
    const auto hasKeys = ! context.rowNames.get().heldKeys.isEmpty();

    if (std::exchange (hadKeys, hasKeys) == hasKeys)
        return;

    auto values = context.editor.settings.get();

    if (hasKeys && values.chordsPlayed < chordsToLearn)
    {
        ++values.chordsPlayed;
        context.editor.settings.set (values);
    }

    appear (! hasKeys && values.chordsPlayed < chordsToLearn);
}

void RollHint::appear (bool shouldBeSeen)
{
    isWanted = shouldBeSeen;
    constexpr auto millisecondsPerSecond = 1000.0f;
    const auto seconds = AssetScheme::Base::get().constantOf ("PopupFadeSeconds");

    auto& animator = juce::Desktop::getInstance().getAnimator();
    animator.cancelAnimation (this, false);
    setAlpha (1.0f); // a fade leaves it at 0

    if (isWanted || context.editor.settings.get().reducedMotion || ! isShowing())
        setVisible (isWanted);
    else
        animator.fadeOut (this, juce::roundToInt (seconds * millisecondsPerSecond));
}

void RollHint::schemeChanged()
{
    regular = getCanvas().fontOf ("FontBody");
    bold = getCanvas().fontOf ("FontBody", AssetScheme::Cut::bold);
    setVisible (isWanted);
}

void RollHint::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto line = std::max (1.0f, getCanvas().pixelsOf ("HairlineStroke"));
    const auto box = getLocalBounds().toFloat().reduced (0.5f * line);
    const auto corner = getCanvas().cornerOf ("ControlCorner", box);

    g.setColour (scheme.colourOf ("Popup"));
    g.fillRoundedRectangle (box, corner);
    g.setColour (scheme.colourOf ("ControlEdge"));
    g.drawRoundedRectangle (box, corner, line);

    constexpr auto iconShare = 0.55f; // of the height
    auto area = box.reduced (0.35f * box.getHeight(), 0.0f);
    const auto iconSize = iconShare * box.getHeight();
    icon.paint (g,
                area.removeFromLeft (iconSize).withSizeKeepingCentre (iconSize, iconSize),
                scheme.colourOf ("Midi"));
    area.removeFromLeft (0.3f * box.getHeight());

    const juce::String first ("Hold a chord to hear this pattern.");
    const juce::String second ("The bold row is your lowest key; each row up is the next key you hold.");
    const auto firstWidth = bold.getStringWidthFloat (first);

    g.setColour (scheme.colourOf ("Text"));
    g.setFont (bold);
    g.drawText (first, area.removeFromLeft (firstWidth + 1.0f), juce::Justification::centredLeft, false);

    constexpr auto narrowest = 0.8f;
    area.removeFromLeft (0.5f * bold.getHeight());
    g.setColour (scheme.colourOf ("TextSecondary"));
    g.setFont (regular);
    g.drawFittedText (second, area.toNearestInt(), juce::Justification::centredLeft, 1, narrowest);
}
} // namespace Zn::GUI
