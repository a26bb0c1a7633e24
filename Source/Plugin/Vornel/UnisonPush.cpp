#include "Plugin/Vornel/UnisonPush.h"

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
/** True if the value was another one. */
bool setIfDifferent (juce::RangedAudioParameter& parameter, float value) noexcept
{
    const auto normalised = parameter.convertTo0to1 (value);

    if (parameter.getValue() == normalised)
        return false;

    parameter.setValue (normalised);
    return true;
}
} // namespace

UnisonPush::UnisonPush (SoundParams& paramsToUse) : params (paramsToUse), timer ([this] { tellListeners(); })
{}

void UnisonPush::push() noexcept
{
    const auto voices = static_cast<float> (params.unison.get());
    const auto amount = params.unisonAmount.get();

    for (size_t i = 0; i < changed.size(); ++i)
    {
        auto& unison = params.synth.oscillators.oscillators[i].unison;
        const auto voicesDiffer = setIfDifferent (*unison.unison, voices);
        const auto depthDiffers = setIfDifferent (*unison.unisonDepth, amount);
        const auto spreadDiffers = setIfDifferent (*unison.unisonSpread, amount);

        if (voicesDiffer || depthDiffers || spreadDiffers)
            changed[i].store (true);
    }
}

void UnisonPush::tellListeners()
{
    for (size_t i = 0; i < changed.size(); ++i)
    {
        if (! changed[i].exchange (false))
            continue;

        auto& unison = params.synth.oscillators.oscillators[i].unison;

        for (auto* parameter :
             std::initializer_list<juce::AudioProcessorParameter*> { &*unison.unison,
                                                                     &*unison.unisonDepth,
                                                                     &*unison.unisonSpread })
            parameter->sendValueChangedMessageToListeners (parameter->getValue());
    }
}
} // namespace Zn::Audio::Plugins::Vornel
