#include "Synth/ChannelInstrument.h"

namespace Zn::Audio
{
namespace
{
constexpr int allSoundOff = 120, resetAllControllers = 121, allNotesOff = 123; // controllers

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

bool isController (const juce::MidiMessageMetadata& event, int number) noexcept
{
    return kindOf (event) == controllerKind && event.data[1] == number;
}

bool movesWheel (const juce::MidiMessageMetadata& event) noexcept
{
    return kindOf (event) == pitchWheelKind || isController (event, resetAllControllers);
}
} // namespace

bool ChannelInstrument::concerns (const juce::MidiMessageMetadata& event) noexcept
{
    const auto kind = kindOf (event);
    const auto isPanic = isController (event, allSoundOff) || isController (event, allNotesOff);

    return kind == noteOnKind || kind == noteOffKind || movesWheel (event) || isPanic;
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
    else if (movesWheel (event))
    {
        followWheel (event);
        listener.pitchBendChanged (bendSemitones());
    }
    else if (isController (event, allNotesOff))
    {
        for (auto key = 0; key < 128; ++key)
            noteOff (key);
    }
    else if (isController (event, allSoundOff))
    {
        reset();
        listener.soundOff();
    }
}

void ChannelInstrument::followWheel (const juce::MidiMessageMetadata& event) noexcept
{
    if (kindOf (event) == pitchWheelKind)
        bend = juce::MPEValue::from14BitInt ((event.data[1] & 0x7F) | ((event.data[2] & 0x7F) << 7));
    else if (isController (event, resetAllControllers))
        bend = juce::MPEValue::centreValue();
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
