#include "GUI/Sound/FilterCurve.h"

#include "Parameters/CreateForwarder.h"
#include "Synth/Kernels/Pitch.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto highestDecibels = 24.0, lowestDecibels = -56.0;
constexpr auto topOfCutoff = 0.999f; // normalised; from here on up there is no filter
constexpr auto middleC = 60;
constexpr auto gridOpacity = 0.8f;

struct GridLine
{
    double hertz;
    const char* label; // null: none
};

constexpr GridLine gridLines[] { { 100.0, "100" }, { 1000.0, "1k" }, { 10000.0, nullptr } };
} // namespace

FilterCurve::FilterCurve (EditorContext& contextToUse, std::string element)
    : Picture (contextToUse, std::move (element))
    , cutoff (Parameters::createForwarder (contextToUse.state().params.sound.synth.filter.cutoff))
    , resonance (Parameters::createForwarder (contextToUse.state().params.sound.synth.filter.resonance))
{
    handles.resize (1);
    setMouseCursor (juce::MouseCursor::DraggingHandCursor);
}

FilterCurve::Inputs FilterCurve::readInputs() const
{
    const auto& filter = context.state().params.sound.synth.filter;
    const auto sampleRate = context.processor.getSampleRate();

    return { filter.cutoff.get(),
             filter.resonance.get(),
             filter.keyTracking.get(),
             cutoff->getNormalised() >= topOfCutoff,
             sampleRate > 0.0 ? sampleRate : Inputs {}.sampleRate };
}

float FilterCurve::trackedHz() const
{
    return inputs.keyTracking * Audio::Kernels::noteFrequencyHz (middleC, 0.0);
}

float FilterCurve::xOf (double hertz) const
{
    return area().getWidth() * static_cast<float> (axis.placeOf (hertz));
}

float FilterCurve::yOf (double level) const
{
    const auto place = (highestDecibels - level) / (highestDecibels - lowestDecibels);
    return area().getHeight() * static_cast<float> (place);
}

bool FilterCurve::takeInputs (bool anyway)
{
    const auto current = readInputs();

    if (! anyway && current == inputs)
        return false;

    inputs = current;

    const auto cutoffHz = inputs.cutoffHz + trackedHz();
    decibels.resize (static_cast<std::size_t> (std::max (2, getWidth() + 1)));

    if (inputs.isOpen)
        std::ranges::fill (decibels, 0.0f);
    else
        fillFilterDecibels (Audio::Kernels::makeFilterCoefficients (double (cutoffHz),
                                                                    double (inputs.resonance),
                                                                    inputs.sampleRate),
                            axis,
                            inputs.sampleRate,
                            decibels);

    std::vector<juce::Point<float>> points;
    points.reserve (decibels.size());

    for (std::size_t i = 0; i < decibels.size(); ++i)
        points.emplace_back (float (i), yOf (std::max (double (decibels[i]), lowestDecibels * 1.1)));

    line = pathThrough (points);
    under = pathDownTo (points, area().getBottom());
    fill = fillUnder (area());
    font = context.canvas.fontOf ("FontSmall");
    handles = { { xOf (double (cutoffHz)), yOf (decibelsOfResonance (double (inputs.resonance))) } };
    return true;
}

void FilterCurve::paintGrid (juce::Graphics& g)
{
    const auto hairline = std::max (1.0f, pixels ("HairlineStroke"));
    const auto gap = pixels ("PictureLabelGap");
    const auto labelTop = area().getBottom() - gap - font.getHeight();

    for (const auto& [hertz, label] : gridLines)
    {
        const auto x = std::round (xOf (hertz));
        g.setColour (colour ("GridBeat").withMultipliedAlpha (gridOpacity));
        g.fillRect (x, 0.0f, hairline, area().getHeight());

        if (label == nullptr)
            continue;

        g.setColour (colour ("TextQuiet"));
        g.setFont (font);
        g.drawText (label,
                    juce::Rectangle<float> (x + gap, labelTop, area().getWidth(), font.getHeight()),
                    juce::Justification::centredLeft,
                    false);
    }

    g.setColour (colour ("GridBeat").withMultipliedAlpha (gridOpacity));
    g.fillRect (0.0f, std::round (yOf (0.0)), area().getWidth(), hairline);
}

void FilterCurve::paintPicture (juce::Graphics& g)
{
    paintGrid (g);

    g.setFillType (isEnabled() ? fill : juce::FillType (colour ("CurveFill")));
    g.fillPath (under);
    g.setColour (colour ("Sound"));
    g.strokePath (line, juce::PathStrokeType (pixels ("WaveStroke"), juce::PathStrokeType::curved));
    paintHandles (g);
}

juce::String FilterCurve::describe() const
{
    const auto cutoffText = ValueText (ValueStyle::hertz).current (*cutoff);
    const auto resonanceText = ValueText (ValueStyle::decimals).current (*resonance);
    return inputs.isOpen ? juce::String ("Open") : "Low-pass, " + cutoffText + ", resonance " + resonanceText;
}

std::pair<juce::String, juce::String> FilterCurve::readoutOf (std::size_t) const
{
    return { ValueText (ValueStyle::hertz).current (*cutoff, ValueDetail::full),
             "Q " + ValueText (ValueStyle::decimals).current (*resonance) };
}

void FilterCurve::moveHandle (std::size_t, juce::Point<float> place)
{
    const auto hertz = axis.frequencyAt (double (place.x / area().getWidth()));
    const auto level =
        highestDecibels - double (place.y / area().getHeight()) * (highestDecibels - lowestDecibels);

    cutoff->setDouble (hertz - double (trackedHz()));
    resonance->setDouble (resonanceOfDecibels (level));
}
} // namespace Zn::GUI
