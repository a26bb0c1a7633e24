#pragma once

#include "Support/PlainProcessor.h"

#include <string>
#include <vector>

namespace Zn::Tests
{
/** Lets the MIDI through, plays a tone level of the number of keys held, and writes down what the host did.
*/
class TestProcessor final : public PlainProcessor
{
public:
    TestProcessor() : PlainProcessor (BusesProperties().withOutput ("Out", juce::AudioChannelSet::stereo()))
    {
        addParameter (
            new juce::AudioParameterFloat ({ "Gain", 1 }, "Gain", { -60.0f, 6.0f }, 0.0f, levelTexts()));
        addParameter (
            new juce::AudioParameterChoice ({ "Shape", 1 }, "Wave shape", { "Sine", "1/4 Pulse" }, 0));
        addParameter (new juce::AudioParameterBool ({ "On", 1 }, "On", true));
    }

    static constexpr float levelPerKey = 0.125f;

    std::vector<std::string> calls; // in order
    std::vector<juce::Optional<juce::AudioPlayHead::PositionInfo>> positions;
    std::vector<int> blockSizes;
    double preparedRate = 0.0;
    int preparedSize = 0;

    void prepareToPlay (double sampleRate, int size) override
    {
        calls.push_back (isNonRealtime() ? "prepare offline" : "prepare");
        preparedRate = sampleRate;
        preparedSize = size;
    }

    void releaseResources() override { calls.push_back ("release"); }

    void processBlock (juce::AudioBuffer<float>& audio, juce::MidiBuffer& midi) override
    {
        blockSizes.push_back (audio.getNumSamples());
        positions.push_back (getPlayHead() != nullptr ? getPlayHead()->getPosition()
                                                      : juce::Optional<juce::AudioPlayHead::PositionInfo>());
        auto event = midi.begin();

        for (auto i = 0; i < audio.getNumSamples(); ++i)
        {
            for (; event != midi.end() && (*event).samplePosition <= i; ++event)
                heldKeys += (*event).getMessage().isNoteOn() ? 1 : (*event).getMessage().isNoteOff() ? -1 : 0;

            for (auto channel = 0; channel < audio.getNumChannels(); ++channel)
                audio.setSample (channel, i, levelPerKey * static_cast<float> (heldKeys));
        }
    }

private:
    static juce::AudioParameterFloatAttributes levelTexts()
    {
        return juce::AudioParameterFloatAttributes()
            .withStringFromValueFunction ([] (float value, int) { return juce::String (value, 2) + " dB"; })
            .withValueFromStringFunction ([] (const juce::String& text) { return text.getFloatValue(); });
    }

    int heldKeys = 0;
};
} // namespace Zn::Tests
