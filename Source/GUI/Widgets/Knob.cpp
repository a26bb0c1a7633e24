#include "GUI/Widgets/Knob.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr int mostTicks = 12; // more would run together

// Of the outer radius of the arc.
constexpr auto capRadius = 0.684f, pointerStart = 0.2076f, pointerEnd = 0.546f, tickRadius = 1.153f,
               tickSize = 0.052f;

float constant (std::string_view name)
{
    return AssetScheme::Base::get().constantOf (name);
}
} // namespace

Knob::Knob (EditorContext& contextToUse,
            std::string element,
            std::shared_ptr<Parameters::Parameter> parameterToShow)
    : ValueControl (contextToUse, std::move (element), std::move (parameterToShow))
    , isBipolar (getText().style == ValueStyle::signedNumber)
{
    setMouseCursor (juce::MouseCursor::UpDownResizeCursor);
}

bool Knob::labelFits() const
{
    const auto width = context.canvas.boundsOf (getElement()).getWidth();
    return context.canvas.fontOf ("FontLabel").getStringWidthFloat (getText().label)
           <= static_cast<float> (width);
}

void Knob::setShortLabel (bool shouldBeShort)
{
    if (std::exchange (shortened, shouldBeShort) != shouldBeShort)
        repaint();
}

void Knob::schemeChanged()
{
    font = context.canvas.fontOf ("FontLabel");

    const auto line = juce::roundToInt (pixels ("KnobLabelHeight"));
    labelLine = getLocalBounds().removeFromTop (line);
    valueLine = getLocalBounds().removeFromBottom (line);
    centre = { area().getCentreX(), constant ("KnobCentre") * area().getHeight() };
    radius = (pixels ("KnobDiameter") - pixels ("KnobStroke")) / 2.0f;
    track = arc (0.0f, 1.0f);
    valueChanged();
}

juce::Rectangle<float> Knob::learnArea() const
{
    const auto side = pixels ("KnobDiameter") + 2.0f * pixels ("ThinStroke");
    return juce::Rectangle<float> (side, side).withCentre (centre);
}

void Knob::valueChanged()
{
    filled = arc (isBipolar ? 0.5f : 0.0f, shownPosition());

    const auto outer = pixels ("KnobDiameter") / 2.0f;
    const auto angle = angleOf (shownPosition());
    pointer.clear();
    pointer.startNewSubPath (centre.getPointOnCircumference (pointerStart * outer, angle));
    pointer.lineTo (centre.getPointOnCircumference (pointerEnd * outer, angle));
    repaint();
}

float Knob::angleOf (float position) const
{
    return juce::degreesToRadians (constant ("KnobStartDegrees") + position * constant ("KnobSweepDegrees"));
}

juce::Path Knob::arc (float from, float to) const
{
    juce::Path path;

    if (from != to)
        path.addCentredArc (centre.x, centre.y, radius, radius, 0.0f, angleOf (from), angleOf (to), true);

    return path;
}

void Knob::paintControl (juce::Graphics& g)
{
    const auto& label = shortened ? getText().shortLabel : getText().label;
    paintText (g, label, font, labelLine.toFloat(), juce::Justification::centred, colour ("TextSecondary"));

    const auto apart = pixels ("ThinStroke"); // from the values of its neighbours
    paintText (g,
               shownText(),
               font,
               valueLine.toFloat().reduced (apart, 0.0f),
               juce::Justification::centred,
               colour ("Text"));

    const auto outer = pixels ("KnobDiameter") / 2.0f;
    const juce::PathStrokeType stroke { pixels ("KnobStroke"),
                                        juce::PathStrokeType::curved,
                                        juce::PathStrokeType::rounded };
    g.setColour (colour ("KnobTrack"));
    g.strokePath (track, stroke);
    paintTicks (g);

    g.setColour (colour ("Sound"));
    g.strokePath (filled, stroke);

    g.setColour (surface ("Control"));
    g.fillEllipse (
        juce::Rectangle<float> (2.0f * capRadius * outer, 2.0f * capRadius * outer).withCentre (centre));

    g.setColour (colour ("KnobPointer"));
    g.strokePath (pointer,
                  { pixels ("ThinStroke"), juce::PathStrokeType::curved, juce::PathStrokeType::rounded });
}

void Knob::paintTicks (juce::Graphics& g) const
{
    const auto numSteps = getParameter()->getNumSteps();

    if (numSteps < 2 || numSteps > mostTicks)
        return;

    const auto outer = pixels ("KnobDiameter") / 2.0f;
    const juce::Rectangle<float> dot { 2.0f * tickSize * outer, 2.0f * tickSize * outer };

    for (auto step = 0; step <= numSteps; ++step)
    {
        const auto angle = angleOf (static_cast<float> (step) / static_cast<float> (numSteps));
        g.fillEllipse (dot.withCentre (centre.getPointOnCircumference (tickRadius * outer, angle)));
    }
}
} // namespace Zn::GUI
