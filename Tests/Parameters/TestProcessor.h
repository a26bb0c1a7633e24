#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <string>
#include <vector>

namespace Zn::Tests
{
/** A processor that does nothing but list parameters. */
class TestProcessor : public juce::AudioProcessor
{
public:
    const juce::String getName() const override { return "Test"; }
    void prepareToPlay (double, int) override {}
    void releaseResources() override {}
    void processBlock (juce::AudioBuffer<float>&, juce::MidiBuffer&) override {}
    double getTailLengthSeconds() const override { return 0.0; }
    bool acceptsMidi() const override { return false; }
    bool producesMidi() const override { return false; }
    juce::AudioProcessorEditor* createEditor() override { return nullptr; }
    bool hasEditor() const override { return false; }
    int getNumPrograms() override { return 1; }
    int getCurrentProgram() override { return 0; }
    void setCurrentProgram (int) override {}
    const juce::String getProgramName (int) override { return "Program"; }
    void changeProgramName (int, const juce::String&) override {}
    void getStateInformation (juce::MemoryBlock&) override {}
    void setStateInformation (const void*, int) override {}
};

/** What a host is told of one parameter, in order: "begin", "end" or the normalised value. */
class HostLog : private juce::AudioProcessorParameter::Listener
{
public:
    explicit HostLog (juce::AudioProcessorParameter& parameterToUse) : parameter (parameterToUse)
    {
        parameter.addListener (this);
    }

    ~HostLog() override { parameter.removeListener (this); }

    HostLog (const HostLog&) = delete;
    HostLog& operator= (const HostLog&) = delete;

    std::vector<std::string> lines;

private:
    void parameterValueChanged (int, float value) override { lines.push_back (std::to_string (value)); }

    void parameterGestureChanged (int, bool isStarting) override
    {
        lines.push_back (isStarting ? "begin" : "end");
    }

    juce::AudioProcessorParameter& parameter;
};
} // namespace Zn::Tests
