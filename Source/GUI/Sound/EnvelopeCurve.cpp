#include "GUI/Sound/EnvelopeCurve.h"

#include "Parameters/CreateForwarder.h"

namespace Zn::GUI
{
namespace
{
/** In the order of the corners that they hold. */
enum Handle : std::size_t
{
    attackHandle,
    decayHandle,
    sustainHandle,
    releaseHandle
};
} // namespace

EnvelopeCurve::EnvelopeCurve (EditorContext& contextToUse, std::string element)
    : Picture (contextToUse, std::move (element))
    , attack (Parameters::createForwarder (contextToUse.state().params.sound.synth.adsr.attack))
    , decay (Parameters::createForwarder (contextToUse.state().params.sound.synth.adsr.decay))
    , sustain (Parameters::createForwarder (contextToUse.state().params.sound.synth.adsr.sustain))
    , release (Parameters::createForwarder (contextToUse.state().params.sound.synth.adsr.release))
{
    handles.resize (releaseHandle + 1);
    setMouseCursor (juce::MouseCursor::DraggingHandCursor);
}

bool EnvelopeCurve::takeInputs (bool anyway)
{
    const EnvelopeTimes current { attack->getFloat(),
                                  decay->getFloat(),
                                  sustain->getFloat(),
                                  release->getFloat() };

    if (! anyway && current == inputs)
        return false;

    inputs = current;
    shape = EnvelopeShape::of (inputs);

    const auto area = canvasArea();
    std::vector<juce::Point<float>> points;

    for (const auto& corner : shape.corners)
        points.emplace_back (area.getX() + corner.x * area.getWidth(),
                             area.getBottom() - corner.y * area.getHeight());

    line = pathThrough (points);
    under = pathDownTo (points, area.getBottom());
    fill = fillUnder (area);
    handles.assign (points.begin() + 1, points.end());
    return true;
}

void EnvelopeCurve::paintPicture (juce::Graphics& g)
{
    g.setFillType (isEnabled() ? fill : juce::FillType (colour ("CurveFill")));
    g.fillPath (under);
    g.setColour (colour ("Sound"));
    g.strokePath (line, juce::PathStrokeType (pixels ("WaveStroke"), juce::PathStrokeType::curved));
    paintHandles (g);
}

juce::String EnvelopeCurve::describe() const
{
    const ValueText time (ValueStyle::seconds);
    return "Attack " + time.current (*attack) + ", decay " + time.current (*decay) + ", sustain "
           + ValueText (ValueStyle::percent).current (*sustain) + ", release " + time.current (*release);
}

std::vector<Picture::ParameterHandle> EnvelopeCurve::parametersOf (std::size_t handle) const
{
    switch (handle)
    {
    case attackHandle:
        return { attack };
    case decayHandle:
        return { decay, sustain };
    case sustainHandle:
        return { sustain };
    default:
        return { release };
    }
}

std::pair<juce::String, juce::String> EnvelopeCurve::readoutOf (std::size_t handle) const
{
    const auto time = [] (const ParameterHandle& parameter) {
        return ValueText (ValueStyle::seconds).current (*parameter, ValueDetail::precise);
    };
    const auto level = ValueText (ValueStyle::percent).current (*sustain, ValueDetail::precise);

    switch (handle)
    {
    case attackHandle:
        return { "Attack", time (attack) };
    case decayHandle:
        return { "Decay " + time (decay), "Sus " + level };
    case sustainHandle:
        return { "Sustain", level };
    default:
        return { "Release", time (release) };
    }
}

void EnvelopeCurve::dragBegins (std::size_t)
{
    heldShape = shape;
}

void EnvelopeCurve::moveHandle (std::size_t handle, juce::Point<float> place)
{
    const auto area = canvasArea();
    const auto x = (place.x - area.getX()) / area.getWidth();
    const auto level = double ((area.getBottom() - place.y) / area.getHeight());
    switch (handle)
    {
    case attackHandle:
        attack->setDouble (double (EnvelopeShape::attackFor (inputs, x)));
        break;
    case decayHandle:
        decay->setDouble (double (EnvelopeShape::decayFor (inputs, x)));
        sustain->setDouble (level);
        break;
    case sustainHandle:
        sustain->setDouble (level);
        break;
    default:
        release->setDouble (
            double (heldShape.secondsBetween (heldShape.corners[EnvelopeShape::sustainEnd].x, x)));
        break;
    }
}
} // namespace Zn::GUI
