#include "GUI/Sound/OscillatorCard.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "Parameters/CreateForwarder.h"
#include "Parameters/ParamHolder.h"
#include "Synth/WavetableSynth/OscillatorParam.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
auto& paramsOf (EditorContext& context, int index)
{
    return context.state().params.sound.synth.oscillators.oscillators[static_cast<std::size_t> (index)];
}

std::shared_ptr<Parameters::Parameter>
tableOf (Audio::ParamHolder<Audio::WavetableSynth::OscillatorParam>& holder)
{
    return std::make_shared<Audio::WavetableSynth::OSCForwarder> (*holder, holder.getHostSide());
}
} // namespace

OscillatorCard::OscillatorCard (EditorContext& contextToUse, int index, Callbacks callbacks)
    : SoundCard (contextToUse, "Osc" + std::to_string (index + 1), "Oscillator " + juce::String (index + 1))
    , name (getElement())
    , table (tableOf (paramsOf (contextToUse, index).type))
    , enable (contextToUse,
              name + "Enable",
              Parameters::createForwarder (paramsOf (contextToUse, index).enable),
              { .look = Toggle::Look::power, .accent = "Sound" })
    , unison (contextToUse, name + "Unison", std::move (callbacks.unisonClicked))
    , wave (contextToUse, name + "Wave", table)
    , type (contextToUse, name, table, std::move (callbacks.table))
    , octave (
          contextToUse, name + "Octave", Parameters::createForwarder (paramsOf (contextToUse, index).octave))
    , tune (contextToUse, name + "Tune", Parameters::createForwarder (paramsOf (contextToUse, index).tune))
    , volume (
          contextToUse, name + "Volume", Parameters::createForwarder (paramsOf (contextToUse, index).volume))
    , title (enable, std::move (callbacks.dragged), std::move (callbacks.dropped))
{
    setPower (enable, [&enabled = paramsOf (contextToUse, index).enable] { return enabled.get(); });
    add ({ &enable, &unison, &wave, &type, &octave, &tune, &volume });
    enable.addAndMakeVisible (title);
}

void OscillatorCard::setDropTarget (bool shouldBeDropTarget)
{
    if (std::exchange (isDropTarget, shouldBeDropTarget) != shouldBeDropTarget)
        repaint();
}

void OscillatorCard::setTable (int index)
{
    type.change ([index] (auto& parameter) { parameter.setInt (index); });
}

void OscillatorCard::schemeChanged()
{
    SoundCard::schemeChanged();
    fitLabels ({ &octave, &tune, &volume });

    // The sign itself stays the button's; its words, which flip it too, can be dragged.
    auto words = enable.getLocalBounds();
    words.removeFromLeft (
        juce::roundToInt (context.canvas.pixelsOf ("IconSize") + context.canvas.pixelsOf ("CaptionGap")));
    title.setBounds (words);
}

void OscillatorCard::paintOverChildren (juce::Graphics& g)
{
    if (! isDropTarget)
        return;

    const auto stroke = context.canvas.pixelsOf ("ThinStroke");
    const auto area = getLocalBounds().toFloat();
    g.setColour (AssetScheme::Base::get().colourOf ("Sound"));
    g.drawRoundedRectangle (area.reduced (stroke / 2.0f),
                            context.canvas.cornerOf ("CardCorner", area),
                            stroke);
}
} // namespace Zn::GUI
