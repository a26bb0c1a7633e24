#include "GUI/Player/MidiDrop.h"

namespace Zn::GUI
{
namespace
{
juce::String firstMidiFile (const juce::StringArray& files)
{
    for (const auto& path : files)
        if (path.endsWithIgnoreCase (".mid") || path.endsWithIgnoreCase (".midi"))
            return path;

    return {};
}
} // namespace

FileDrops::Kind midiDrop (PlayerActions& actions)
{
    return { .invitation = "Play this file",
             .icon = "midi.svg",
             .accent = "Midi",
             .accepts = [] (const auto& files) { return firstMidiFile (files).isNotEmpty(); },
             .drop = [&actions] (const auto& files) { actions.play (juce::File (firstMidiFile (files))); } };
}
} // namespace Zn::GUI
