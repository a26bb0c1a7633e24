#include "Sequencer/MidiPlayer/ChordFiles.h"

#include <ChordData.h>

#include <span>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
constexpr auto extension = ".mid";

const Binaries::Library& files()
{
    static const auto library = Binaries::libraryOf (ChordData::namedResourceList,
                                                     ChordData::originalFilenames,
                                                     ChordData::namedResourceListSize,
                                                     ChordData::getNamedResource);
    return library;
}

juce::StringArray namesInOrder()
{
    juce::StringArray names;

    for (const auto* fileName :
         std::span (ChordData::originalFilenames, std::size_t (ChordData::namedResourceListSize)))
        names.add (juce::String (fileName).upToLastOccurrenceOf (extension, false, true));

    names.sortNatural();
    return names;
}
} // namespace

const juce::StringArray& chordFileNames()
{
    static const auto names = namesInOrder();
    return names;
}

Binaries::Bytes chordFile (const juce::String& name)
{
    return files().find (Binaries::resourceName ((name + extension).toStdString()));
}
} // namespace Zn::Sequencer::MidiPlayer
