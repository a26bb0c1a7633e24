#include "Presets/Folders.h"

namespace Zn::Presets::Folders
{
namespace
{
juce::File ourFolderIn (juce::File::SpecialLocationType location)
{
    return juce::File::getSpecialLocation (location).getChildFile ("Brenvik").getChildFile ("Vornel");
}
} // namespace

juce::File user (const juce::String& leaf)
{
    return ourFolderIn (juce::File::userDocumentsDirectory).getChildFile (leaf);
}

juce::File factory (const juce::String& leaf)
{
    const auto shared = ourFolderIn (juce::File::commonApplicationDataDirectory);

    return (shared.isDirectory() ? shared : ourFolderIn (juce::File::userApplicationDataDirectory))
        .getChildFile (leaf);
}

juce::File development()
{
    return juce::File::getSpecialLocation (juce::File::userDesktopDirectory)
        .getChildFile ("BrenvikDev")
        .getChildFile ("Presets");
}
} // namespace Zn::Presets::Folders
