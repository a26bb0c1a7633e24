#pragma once

#include "Plugin/Vornel/State.h"

#include <string>

namespace Zn::PresetTool
{
enum class Kind
{
    pattern,
    sound
};

/** A document that one of the two libraries takes. */
struct Preset
{
    juce::String name; // as the plug-in shows it
    Kind kind = Kind::pattern;
    nlohmann::json document;

    juce::String getKindName() const { return kind == Kind::pattern ? "pattern preset" : "sound preset"; }
};

/** Throws Refused, which tells why neither library takes the file. */
Preset readPreset (const juce::File& file);

/** A plug-in without a processor, and the preset that is loaded into it. */
class LoadedPreset
{
public:
    /** Throws Refused if loading breaks off. */
    explicit LoadedPreset (const Preset& preset);

    Audio::Plugins::Vornel::State& getState() noexcept { return state; }

    /** What the plug-in makes of it: every value that the preset leaves out is there, and each in the plug-in's form.
        Says the same of its name and its creation; a pattern preset without sound stays without.
    */
    nlohmann::json getDocument();

private:
    const Preset& preset;
    Audio::Plugins::Vornel::State state;
    Presets::Base& library;
};
} // namespace Zn::PresetTool
