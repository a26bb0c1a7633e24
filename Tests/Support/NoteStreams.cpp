#include "Support/NoteStreams.h"

#include <algorithm>
#include <array>
#include <random>

namespace Zn::Tests
{
namespace
{
using Random = std::mt19937;

int between (Random& random, int lowest, int highest)
{
    return lowest + static_cast<int> (random() % static_cast<unsigned> (highest - lowest + 1));
}

juce::MidiMessage randomEvent (Random& random, const RandomPlaying& playing)
{
    const auto kind = between (random, 0, 99);
    const auto note = between (random, playing.lowestNote, playing.highestNote);

    if (playing.usesPedal && kind < 10)
        return juce::MidiMessage::controllerEvent (1, 64, kind < 5 ? 127 : 0);

    if (kind < 55)
        return { 0x90, note, between (random, 1, 127) };

    if (kind < 65)
        return { 0x90, note, 0 };

    return { 0x80, note, between (random, 0, 127) };
}
} // namespace

std::string unbalanced (const juce::MidiBuffer& events)
{
    std::array<int, 128> ons {}, offs {};

    for (const auto event : events)
    {
        const auto message = event.getMessage();
        const auto note = static_cast<std::size_t> (message.getNoteNumber());

        ons[note] += message.isNoteOn() ? 1 : 0;
        offs[note] += message.isNoteOff() ? 1 : 0;
    }

    std::string result;

    for (std::size_t note = 0; note < ons.size(); ++note)
        if (ons[note] != offs[note])
            result += std::to_string (note) + ": " + std::to_string (ons[note]) + " on "
                      + std::to_string (offs[note]) + " off, ";

    return result;
}

std::string stillSounding (const juce::MidiBuffer& events)
{
    std::array<bool, 128> sounding {};

    for (const auto event : events)
        if (const auto message = event.getMessage(); message.isNoteOnOrOff())
            sounding[static_cast<std::size_t> (message.getNoteNumber())] = message.isNoteOn();

    std::string result;

    for (std::size_t note = 0; note < sounding.size(); ++note)
        if (sounding[note])
            result.append (result.empty() ? "" : " ").append (std::to_string (note));

    return result;
}

juce::MidiBuffer randomPlaying (int seed, const RandomPlaying& playing)
{
    Random random (static_cast<unsigned> (seed));
    juce::MidiBuffer result;
    constexpr auto numEvents = 400, last = 3999; // sample

    for (auto i = 0; i < numEvents; ++i)
        result.addEvent (randomEvent (random, playing), between (random, 0, last));

    if (playing.usesPedal)
        result.addEvent (juce::MidiMessage::controllerEvent (1, 64, 0), last);

    for (auto note = playing.lowestNote; note <= playing.highestNote; ++note)
        result.addEvent (juce::MidiMessage::noteOff (1, note), last);

    return result;
}

std::vector<int> randomBlocks (int seed, int numSamples)
{
    Random random (static_cast<unsigned> (seed));
    std::vector<int> lengths;

    for (auto rest = numSamples; rest > 0; rest -= lengths.back())
        lengths.push_back (std::min (rest, between (random, 1, 300)));

    return lengths;
}
} // namespace Zn::Tests
