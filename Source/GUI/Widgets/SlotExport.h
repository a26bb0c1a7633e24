#pragma once

#include "GUI/Widgets/EditorContext.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <memory>

namespace Zn::GUI
{
/** One pass of a slot's pattern as it would sound; without tracks when there is nothing to play. Thread: message. */
juce::MidiFile exportSlot (Audio::Plugins::Vornel::State& state, int slot);

/** Takes patterns out of the editor as MIDI files, by a drag into the host or a dialogue. Thread: message. */
class SlotExport
{
public:
    explicit SlotExport (EditorContext& contextToUse) : context (contextToUse) {}

    /** Goes on with a drag that has left the editor, or began on a button for it, as that of a file. */
    void drag (int slot, juce::Component& source);

    /** Asks for a place, without holding anything up. */
    void saveAs (int slot);

private:
    juce::String fileName (int slot) const;
    bool write (int slot, const juce::File& file) const;

    EditorContext& context;
    std::unique_ptr<juce::FileChooser> chooser; // closes with the editor
};
} // namespace Zn::GUI
