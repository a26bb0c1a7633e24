#pragma once

#include "Parameters/ChangeWatcher.h"
#include "Plugin/Vornel/Params.h"
#include "Presets/Base.h"

#include <optional>

namespace Zn::Audio::Plugins::Vornel
{
/** The library of sounds: presets that hold the synth's parameters and nothing else. Thread: message. */
class SynthPreset : public Presets::Base
{
public:
    explicit SynthPreset (SoundParams& soundToUse);

    juce::String getProduct() const override { return "Vornel Sounds"; }
    juce::String getZipName() const override { return "FactorySounds.zip"; }
    juce::File getUserFolder() const override;
    juce::File getFactoryFolder() const override;
    juce::File getDefaultPresetFile() const override;

    /** Marks the preset as edited when one of its parameters changes, from now on. */
    void startFollowing();

    /** What its parameters have changed so far was done by a load, and is no edit. */
    void forgetChanges() noexcept;

    /** Stops marking the preset as edited. Thread: any. */
    void stopFollowing() noexcept { edits.reset(); }

protected:
    const Binaries::Library& getArchives() const override;

    /** The key `Params`. */
    void reflectMembers (Reflector& r) override;

private:
    SoundParams& sound;
    std::optional<Parameters::ChangeWatcher> edits; // of its parameters
};
} // namespace Zn::Audio::Plugins::Vornel
