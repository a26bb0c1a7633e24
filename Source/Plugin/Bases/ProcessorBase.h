#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Audio
{
/** As what a host takes the plug-in in. */
enum class Role
{
    instrument,
    midiEffect // notes only: for hosts that want a plug-in without audio between a track's MIDI and its instrument
};

/** What the plug-in tells every host about itself: its name, its buses, its MIDI ports and its one program.

    The buses of an instrument are a stereo output and an optional stereo input, whose audio is ignored. A MIDI effect has
    none.

    There is no list of programs, though presets would fit into it: hosts remember a program's number beside the state and
    set it again, some after the state, and automate it. Each time a preset would replace what the user has drawn.
*/
class ProcessorBase : public juce::AudioProcessor
{
public:
    explicit ProcessorBase (Role role = Role::instrument);

    /** An instrument accepts exactly one stereo output, with either no input bus or one stereo input; a MIDI effect
        takes whatever a host insists on.
    */
    bool isBusesLayoutSupported (const BusesLayout& layout) const override;

    const juce::String getName() const override { return isMidiEffect() ? "Vornel MIDI" : "Vornel"; }
    bool acceptsMidi() const override { return true; }
    bool producesMidi() const override { return true; }
    bool isMidiEffect() const override { return ownRole == Role::midiEffect; }
    double getTailLengthSeconds() const override { return 0.0; }

    /** A plug-in without a screen; WithEditor gives it one. */
    bool hasEditor() const override { return false; }
    juce::AudioProcessorEditor* createEditor() override { return nullptr; }

    int getNumPrograms() override { return 1; }
    int getCurrentProgram() override { return 0; }
    void setCurrentProgram (int) override {}
    const juce::String getProgramName (int) override { return "Default"; } // hosts refuse an empty name
    void changeProgramName (int, const juce::String&) override {}

private:
    static BusesProperties busesOf (Role role);

    const Role ownRole;
};
} // namespace Zn::Audio
