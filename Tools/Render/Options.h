#pragma once

#include "Renderer.h"

#include <juce_core/juce_core.h>

#include <optional>
#include <string>
#include <vector>

namespace Zn::Render
{
/** What the command line asks for. */
struct Options
{
    struct Setting
    {
        juce::String identifier, text;
    };

    /** A message that the processor has learned before the song begins. */
    struct Learned
    {
        int number = 0;          // of the note for a slot, of the controller for a parameter
        std::optional<int> slot; // 0..7
        juce::String parameter;  // identifier, without a slot
    };

    std::optional<juce::File> input;
    std::optional<juce::File> wavFile, midiFile, eventsFile, newStateFile;
    std::optional<juce::File> stateFile, presetFile, soundFile; // loaded in this order, before the settings
    int wavBits = 24;
    std::vector<Setting> settings;
    std::vector<Learned> learned;
    std::optional<int> slot; // 0..7
    std::optional<juce::int64> seed;
    std::optional<double> bpm; // none: the file's tempo map
    double sampleRate = 48000.0;
    double tailSeconds = 2.0;
    std::optional<Loop> loop;
    Renderer::Setup setup; // blocks and clock; the tail follows from the sample rate
    bool listsParameters = false;
    bool showsHelp = false;
    bool showsVersion = false;
};
} // namespace Zn::Render
