#include "Synth/ChannelInstrument.h"

namespace Zn::Audio
{
namespace
{
constexpr int allSoundOff = 120, allNotesOff = 123; // controllers

enum Kind
{
    noteOffKind = 0x80,
    noteOnKind = 0x90,
    controllerKind = 0xB0,
    pitchWheelKind = 0xE0
};

int kindOf (const juce::MidiMessageMetadata& event) noexcept
{
    return event.numBytes == 3 ? event.data[0] & 0xF0 : 0;
}
} // namespace

bool ChannelInstrument::concerns (const juce::MidiMessageMetadata& event) noexcept
{
    const auto kind = kindOf (event);
    const auto isPanic =
        kind == controllerKind && (event.data[1] == allSoundOff || event.data[1] == allNotesOff);

    return kind == noteOnKind || kind == noteOffKind || kind == pitchWheelKind || isPanic;
}

void ChannelInstrument::process (const juce::MidiMessageMetadata& event) noexcept
{
    const int first = event.data[1] & 0x7F, second = event.data[2] & 0x7F;
    const auto kind = kindOf (event);

    if (kind == noteOnKind && second > 0)
    {
        noteOn (first, second);
    }
    else if (kind == noteOnKind || kind == noteOffKind)
    {
        noteOff (first);
    }
    else if (kind == pitchWheelKind)
    {
        bend = juce::MPEValue::from14BitInt (first | (second << 7));
        listener.pitchBendChanged (bendSemitones());
    }
    else if (kind == controllerKind && first == allNotesOff)
    {
        for (auto key = 0; key < 128; ++key)
            noteOff (key);
    }
    else if (kind == controllerKind && first == allSoundOff)
    {
        reset();
        listener.soundOff();
    }
}

void ChannelInstrument::reset() noexcept
{
    notes.fill ({});
}

void ChannelInstrument::noteOn (int key, int velocity) noexcept
{
    noteOff (key);

    auto& note = notes[static_cast<size_t> (key)];
    note = juce::MPENote (1,
                          key,
                          juce::MPEValue::from7BitInt (velocity),
                          bend,
                          juce::MPEValue::minValue(),
                          juce::MPEValue::centreValue());
    note.totalPitchbendInSemitones = bendSemitones();
    listener.noteAdded (note);
}

void ChannelInstrument::noteOff (int key) noexcept
{
    auto& note = notes[static_cast<size_t> (key)];

    if (note.isValid())
        listener.noteReleased (std::exchange (note, {}));
}
} // namespace Zn::Audio
