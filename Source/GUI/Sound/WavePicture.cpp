#include "GUI/Sound/WavePicture.h"

#include "GUI/Sound/WaveShape.h"
#include "Synth/WavetableSynth/SampleList.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
constexpr auto unisonOpacity = 0.35f;
} // namespace

WavePicture::WavePicture (EditorContext& contextToUse, std::string element, ParameterHandle tableToShow)
    : Picture (contextToUse, std::move (element)), table (std::move (tableToShow))
{
    setMouseCursor (juce::MouseCursor::UpDownResizeCursor);
}

bool WavePicture::takeInputs (bool anyway)
{
    const auto& sound = context.state().params.sound;
    const Inputs current { table->getInt(), sound.unison.get(), sound.unisonAmount.get() };

    if (! anyway && current == inputs)
        return false;

    inputs = current;

    const auto area = canvasArea();
    const auto& view = Audio::WavetableSynth::SampleList::get().getTable (inputs.table);
    auto shape = waveShape (view, std::max (1, juce::roundToInt (area.getWidth())));
    const auto lead = unisonLead (inputs.numVoices, inputs.spread);
    auto second = lead > 0.0f ? movedAhead (shape, lead) : WaveLine();

    fitWave (shape, area);
    fitWave (second, area);
    line = pathThrough (shape);
    under = pathDownTo (shape, area.getCentreY());
    unisonLine = pathThrough (second);
    return true;
}

void WavePicture::paintPicture (juce::Graphics& g)
{
    const auto area = canvasArea();
    const auto rounded = juce::PathStrokeType::curved;
    const auto hairline = std::max (1.0f, pixels ("HairlineStroke"));

    g.setColour (colour ("GridBeat"));
    g.fillRect (area.withSizeKeepingCentre (area.getWidth(), hairline));

    g.setColour (colour ("Sound").withMultipliedAlpha (unisonOpacity));
    g.strokePath (unisonLine, juce::PathStrokeType (pixels ("ThinnerStroke"), rounded));
    g.setColour (colour ("SoundWash"));
    g.fillPath (under);
    g.setColour (colour ("Sound"));
    g.strokePath (line, juce::PathStrokeType (pixels ("WaveStroke"), rounded));
}

juce::String WavePicture::describe() const
{
    return Audio::WavetableSynth::SampleList::get().getNames()[inputs.table];
}

std::pair<juce::String, juce::String> WavePicture::readoutOf (std::size_t) const
{
    return { getText().title, table->getCurrentText() };
}

void WavePicture::moveHandle (std::size_t, juce::Point<float> moved)
{
    const auto steps = juce::roundToInt (moved.y / pixels ("WaveDragStep"));
    table->setInt (juce::jlimit (0, table->getNumSteps(), startTable + steps));
}
} // namespace Zn::GUI
