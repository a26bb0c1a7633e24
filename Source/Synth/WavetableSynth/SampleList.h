#pragma once

#include "Synth/WavetableSynth/TableSources.h"
#include "Synth/WavetableSynth/Wavetable.h"

namespace Zn::Audio::WavetableSynth
{
/** All wavetables, complete and unchanging once it is built: the program's own, then the user's files.

    All instances in a process share the one of get(), and read it with a Singleton::UserToken held. A voice keeps a
    reference that it got before it first sounded, so that the audio thread never asks for it. There are always at
    least two tables. Thread: built on any but audio, read on any.
*/
class SampleList
{
public:
    /** The one of this process. The first call takes some tens of milliseconds. */
    static const SampleList& get();

    SampleList();

    /** What cannot be read as a cycle is left out, and so is a name that presets would take for an earlier one. */
    explicit SampleList (std::vector<TableSource> sources);

    int size() const noexcept { return static_cast<int> (tables.size()); }

    /** An index outside the list is limited to it. */
    const Kernels::TableView& getTable (int index) const noexcept;

    /** "Category - Name" */
    const juce::StringArray& getNames() const noexcept { return names; }

    /** The part that presets store; no two are the same. */
    const juce::StringArray& getShortNames() const noexcept { return shortNames; }

private:
    void addSource (const TableSource& source);
    void add (const juce::String& displayName, Wavetable table);

    std::vector<Wavetable> tables;
    juce::StringArray names, shortNames;
};
} // namespace Zn::Audio::WavetableSynth
