#include "GUI/Pattern/PlayLine.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <cmath>
#include <utility>

namespace Zn::GUI
{
PlayLine::PlayLine (RollContext& contextToUse)
    : context (contextToUse)
    , pollListener (contextToUse.editor.polls, [this] { followClock(); })
    , viewListener (contextToUse.view, [this] { place (lastPlace); })
    , slotListener (contextToUse.editor.shownSlot, [this] { place (lastPlace); })
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
    setComponentID ("PlayLine"); // for tests: it has no place of its own
    setVisible (true);
}

void PlayLine::setTrack (juce::Rectangle<int> newTrack, juce::Rectangle<int> newRoll)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto& canvas = context.editor.canvas;

    track = newTrack;
    roll = newRoll;
    stroke = std::max (1, juce::roundToInt (canvas.pixelsOf ("ThinnerStroke")));
    lineColour = scheme.colourOf ("Time");
    trailColour = scheme.colourOf ("TimeWash");
    trail.invalidate();

    // A small house upside down, whose tip stands on the ruler's foot.
    constexpr auto radiusOfHandle = 0.73f, wallOfRadius = 0.8f;
    const auto radius = std::round (canvas.pixelsOf ("LaneHandle") * radiusOfHandle);
    const auto tip = float (roll.getY() - track.getY());
    const auto wall = tip - radius;
    headRadius = static_cast<int> (std::ceil (radius + 0.5f * float (stroke))); // from the line's left edge

    head.clear();
    head.startNewSubPath (-radius, wall - radius * wallOfRadius);
    head.lineTo (radius, wall - radius * wallOfRadius);
    head.lineTo (radius, wall);
    head.lineTo (0.0f, tip);
    head.lineTo (-radius, wall);
    head.closeSubPath();

    setBounds (track.expanded (headRadius, 0)); // the head may stand at either end
    place (lastPlace);
    repaint();
}

void PlayLine::followClock()
{
    const auto isRunning = PlayPlace::of (context.editor.state()).has_value();

    if (isRunning == frames.isEmpty())
        frames =
            isRunning ? juce::VBlankAttachment (this, [this] { answerFrame(); }) : juce::VBlankAttachment();

    if (! isRunning || getPeer() == nullptr)
        look();
}

void PlayLine::answerFrame()
{
    constexpr auto millisecondsPerSecond = 1000u, tolerance = 4u; // frames do not come evenly
    const auto hertz = static_cast<juce::uint32> (std::max (1, context.editor.settings.get().playHeadHertz));
    const auto now = juce::Time::getMillisecondCounter();

    if (now - lastFrame + tolerance < millisecondsPerSecond / hertz)
        return;

    lastFrame = now;
    look();
}

void PlayLine::look()
{
    const auto newPlace = PlayPlace::of (context.editor.state());

    if (newPlace == lastPlace)
        return;

    place (newPlace);

    if (moved != nullptr)
        moved (newPlace);
}

void PlayLine::place (const std::optional<PlayPlace>& newPlace)
{
    lastPlace = newPlace;
    const auto before = std::exchange (drawn, moveLine (newPlace));

    if (before == drawn)
        return;

    if (before.intersects (drawn))
        return repaint (before.getUnion (drawn)); // one rectangle comes to the screen at once

    repaint (before);
    repaint (drawn);
}

juce::Rectangle<int> PlayLine::moveLine (const std::optional<PlayPlace>& newPlace)
{
    const auto& geometry = context.view.get();
    const auto stepsByColumn = context.editor.settings.get().reducedMotion;
    const auto isHeard = newPlace && newPlace->slot == context.editor.shownSlot.get();
    const auto time = ! isHeard       ? 0.0
                      : stepsByColumn ? geometry.columnAt (newPlace->time) * geometry.columnLength()
                                      : newPlace->time;
    const auto inRoll = geometry.pixelOf (time);

    if (! isHeard || inRoll < 0 || inRoll > geometry.size.width)
        return {};

    const auto column = roll.withZeroOrigin().withWidth (
        std::min (roll.getWidth(), static_cast<int> (geometry.columnWidth())));

    if (std::exchange (wholeTrail, column) != column)
        trail.invalidate();

    linePixel = headRadius + inRoll;
    trailLength = stepsByColumn ? 0 : std::min (inRoll, column.getWidth());
    return getLocalBounds()
        .withLeft (linePixel - std::max (trailLength, headRadius))
        .withRight (linePixel + std::max (stroke, headRadius));
}

void PlayLine::paint (juce::Graphics& g)
{
    if (drawn.isEmpty())
        return;

    paintTrail (g);

    const auto foot = roll.getY() - track.getY();
    g.setColour (lineColour);
    g.fillRect (linePixel, foot, stroke, getHeight() - foot);
    g.fillPath (head, juce::AffineTransform::translation (float (linePixel) + 0.5f * float (stroke), 0.0f));
}

void PlayLine::paintTrail (juce::Graphics& g)
{
    const auto area = wholeTrail.withPosition (linePixel - wholeTrail.getWidth(), roll.getY() - track.getY());
    const juce::Graphics::ScopedSaveState saved (g);

    if (trailLength == 0 || ! g.reduceClipRegion (area.withLeft (linePixel - trailLength)))
        return;

    g.setOrigin (area.getPosition());
    trail.paint (g, wholeTrail);
}

void PlayLine::fillTrail (juce::Graphics& g) const
{
    const auto length = float (wholeTrail.getWidth());
    g.setGradientFill (
        juce::ColourGradient::horizontal (trailColour.withAlpha (0.0f), 0.0f, trailColour, length));
    g.fillRect (wholeTrail);
}
} // namespace Zn::GUI
