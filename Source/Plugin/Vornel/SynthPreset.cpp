#include "Plugin/Vornel/SynthPreset.h"

#include "Plugin/Vornel/FactoryArchives.h"
#include "Presets/Folders.h"

namespace Zn::Audio::Plugins::Vornel
{
SynthPreset::SynthPreset (SoundParams& soundToUse) : sound (soundToUse) {}

void SynthPreset::startFollowing()
{
    edits.emplace (parametersOfPreset (sound), [this] { setDirty (true); });
}

juce::File SynthPreset::getUserFolder() const
{
    return Presets::Folders::user ("Sounds");
}

juce::File SynthPreset::getFactoryFolder() const
{
    return Presets::Folders::factory ("Sounds");
}

juce::File SynthPreset::getDefaultPresetFile() const
{
    return getContentFolder().getChildFile ("Basics/Spacey Piano.json");
}

const Binaries::Library& SynthPreset::getArchives() const
{
    return factoryArchives();
}

void SynthPreset::forgetChanges() noexcept
{
    if (edits)
        edits->forget();
}

void SynthPreset::reflectMembers (Reflector& r)
{
    r.addChild ("Params", sound);

    if (r.isLoading())
        forgetChanges();
}
} // namespace Zn::Audio::Plugins::Vornel
