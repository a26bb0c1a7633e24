#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Audio
{
/** What the plug-in tells every host about itself: its name, its buses, its MIDI ports and its one program.

    Buses: a stereo output and an optional stereo input, whose audio is ignored.
*/
class ProcessorBase : public juce::AudioProcessor
{
public:
    ProcessorBase();

    /** Accepts exactly one stereo output, with either no input bus or one stereo input. */
    bool isBusesLayoutSupported (const BusesLayout& layout) const override;

    const juce::String getName() const override { return "Vornel"; }
    bool acceptsMidi() const override { return true; }
    bool producesMidi() const override { return true; }
    bool isMidiEffect() const override { return false; }

    /** The longest release and the last audible echo. */
    double getTailLengthSeconds() const override { return 5.0; }

    /** A plug-in without a screen; WithEditor gives it one. */
    bool hasEditor() const override { return false; }
    juce::AudioProcessorEditor* createEditor() override { return nullptr; }

    int getNumPrograms() override { return 1; }
    int getCurrentProgram() override { return 0; }
    void setCurrentProgram (int) override {}
    const juce::String getProgramName (int) override { return "Default"; } // hosts refuse an empty name
    void changeProgramName (int, const juce::String&) override {}
};
} // namespace Zn::Audio
