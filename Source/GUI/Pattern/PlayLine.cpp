#include "GUI/Pattern/PlayLine.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <cmath>

namespace Zn::GUI
{
PlayLine::PlayLine (RollContext& contextToUse)
    : context (contextToUse)
    , pollListener (contextToUse.editor.polls, [this] { followClock(); })
    , viewListener (contextToUse.view, [this] { place (lastPlace); })
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
    setComponentID ("PlayLine"); // for tests: it has no place of its own
    setVisible (false);
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

    // A small house upside down, whose tip stands on the ruler's foot.
    constexpr auto radiusOfHandle = 0.73f, wallOfRadius = 0.8f;
    const auto radius = std::round (canvas.pixelsOf ("LaneHandle") * radiusOfHandle);
    const auto tip = float (roll.getY() - track.getY());
    const auto wall = tip - radius;
    headRadius = static_cast<int> (radius) + 1;

    head.clear();
    head.startNewSubPath (-radius, wall - radius * wallOfRadius);
    head.lineTo (radius, wall - radius * wallOfRadius);
    head.lineTo (radius, wall);
    head.lineTo (0.0f, tip);
    head.lineTo (-radius, wall);
    head.closeSubPath();

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
    const auto& geometry = context.view.get();
    const auto stepsByColumn = context.editor.settings.get().reducedMotion;
    const auto isHeard = newPlace && newPlace->slot == context.editor.shownSlot.get();
    const auto time = ! isHeard       ? 0.0
                      : stepsByColumn ? geometry.columnAt (newPlace->time) * geometry.columnLength()
                                      : newPlace->time;
    const auto inRoll = geometry.pixelOf (time);
    const auto isSeen = isHeard && inRoll >= 0 && inRoll <= geometry.size.width;

    setVisible (isSeen);

    if (! isSeen)
        return;

    linePixel = track.getX() + inRoll;
    trailLength = stepsByColumn ? 0 : std::min (inRoll, static_cast<int> (geometry.columnWidth()));
    setBounds (juce::Rectangle<int>::leftTopRightBottom (linePixel - std::max (trailLength, headRadius),
                                                         track.getY(),
                                                         linePixel + std::max (stroke, headRadius),
                                                         track.getBottom()));
}

void PlayLine::paint (juce::Graphics& g)
{
    const auto x = linePixel - getX();
    const auto foot = roll.getY() - track.getY();
    paintTrail (g, roll.withPosition (x, foot));

    g.setColour (lineColour);
    g.fillRect (x, foot, stroke, getHeight() - foot);
    g.fillPath (head, juce::AffineTransform::translation (float (x) + 0.5f * float (stroke), 0.0f));
}

void PlayLine::paintTrail (juce::Graphics& g, juce::Rectangle<int> fromLine) const
{
    constexpr auto strips = 24; // their steps are too fine to be seen

    const auto edgeOf = [&] (int strip) {
        return fromLine.getX() - trailLength + strip * trailLength / strips;
    };

    for (auto strip = 0; strip < strips && trailLength > 0; ++strip)
    {
        g.setColour (trailColour.withMultipliedAlpha (float (strip + 1) / float (strips)));
        g.fillRect (fromLine.withX (edgeOf (strip)).withRight (edgeOf (strip + 1)));
    }
}
} // namespace Zn::GUI
