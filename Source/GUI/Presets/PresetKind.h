#pragma once

#include "GUI/Browser/BrowserColours.h"
#include "Plugin/Vornel/State.h"

#include <string>
#include <string_view>

namespace Zn::GUI
{
/** One of the two libraries of presets, and how the editor speaks of it and colours it. Thread: message. */
struct PresetKind
{
    using State = Audio::Plugins::Vornel::State;

    State& state;
    Presets::Base& library;
    bool hasPatterns;              // else it is the sound alone
    juce::String elements;         // what the names of its bar in the scheme begin with
    juce::String title;            // as "Pattern preset"
    juce::String noun, plural;     // as "preset"
    std::string_view accent, wash; // colours of the scheme

    BrowserColours getColours() const noexcept { return { accent, wash }; }

    static PresetKind patterns (State& state)
    {
        return {
            state, state, true, "Preset", "Pattern preset", "preset", "presets", "Pattern", "PatternDeep"
        };
    }

    static PresetKind sounds (State& state)
    {
        return { state, state.synthPreset, false, "Sound", "Sound", "sound", "sounds", "Sound", "SoundDeep" };
    }

    /** Of a part of the bar, such as "Save". */
    std::string element (const char* part) const { return (elements + part).toStdString(); }
};
} // namespace Zn::GUI
