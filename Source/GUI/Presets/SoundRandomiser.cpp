#include "GUI/Presets/SoundRandomiser.h"

#include "Parameters/CreateForwarder.h"

#include <cmath>

namespace Zn::GUI
{
namespace
{
/** Sets parameters to values of their own unit, as a hand would. */
class Dice
{
public:
    explicit Dice (juce::Random& randomToUse) : random (randomToUse) {}

    void between (Audio::FloatParam& param, float low, float high)
    {
        set (param, low + random.nextFloat() * (high - low));
    }

    /** By equal ratios, as pitches and times are heard. */
    void ratioBetween (Audio::FloatParam& param, float low, float high)
    {
        set (param, low * std::pow (high / low, random.nextFloat()));
    }

    void oneOf (Audio::IntParam& param, std::initializer_list<int> values) { set (param, pick (values)); }
    void withOdds (Audio::BoolParam& param, float odds)
    {
        set (param, random.nextFloat() < odds ? 1.0f : 0.0f);
    }

    template <typename Choice>
    void any (Audio::ParamHolder<Choice>& param)
    {
        set (param, random.nextInt (param->choices.size()));
    }

    template <typename Kind, typename Number>
    static void set (Audio::ParamHolder<Kind>& param, Number value)
    {
        const auto forwarder = Parameters::createForwarder (param);
        forwarder->beginGesture();
        forwarder->setNormalisedNotifying (param->convertTo0to1 (static_cast<float> (value)));
        forwarder->endGesture();
    }

private:
    int pick (std::initializer_list<int> values)
    {
        return *(values.begin() + random.nextInt (static_cast<int> (values.size())));
    }

    juce::Random& random;
};
} // namespace

void randomise (Audio::Plugins::Vornel::SoundParams& sound, juce::Random& random)
{
    Dice dice { random };
    auto& oscillators = sound.synth.oscillators.oscillators;
    auto& filter = sound.synth.filter;
    auto& adsr = sound.synth.adsr;
    auto& delay = sound.synth.delay;

    dice.oneOf (sound.unison, { 1, 2 });
    dice.between (sound.unisonAmount, 0.1f, 0.8f);

    for (auto& oscillator : oscillators)
    {
        dice.any (oscillator.type);
        dice.withOdds (oscillator.enable, 0.5f);
        dice.oneOf (oscillator.octave, { -1, 0, 0, 1 });
        dice.oneOf (oscillator.tune, { 0, 0, 0, 0, 7, -5, 12 });
    }

    Dice::set (oscillators.front().enable, 1); // something is always heard

    dice.withOdds (filter.enable, 0.8f);
    dice.ratioBetween (filter.cutoff, 300.0f, 12000.0f);
    dice.between (filter.resonance, 0.5f, 2.0f);
    dice.between (filter.keyTracking, 0.0f, 1.0f);

    dice.ratioBetween (adsr.attack, 0.005f, 0.3f);
    dice.ratioBetween (adsr.decay, 0.05f, 1.0f);
    dice.between (adsr.sustain, 0.2f, 1.0f);
    dice.ratioBetween (adsr.release, 0.02f, 1.0f);

    dice.any (delay.mode);
    dice.any (delay.timeSync);
    dice.ratioBetween (delay.time, 0.05f, 1.0f);
    dice.between (delay.analog, 0.0f, 1.0f);
    dice.between (delay.feedback, 0.0f, 0.4f);
    dice.between (delay.mix, 0.0f, 0.4f);
    dice.oneOf (sound.synth.sub.subOctave, { -2, -1, -1 });
}
} // namespace Zn::GUI
