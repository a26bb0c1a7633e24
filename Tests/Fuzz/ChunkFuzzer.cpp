#include "Fuzz/Environment.h"
#include "Fuzz/JsonMutator.h"

#include "Plugin/Vornel/Processor.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

namespace
{
using Zn::Audio::Plugins::Vornel::Processor;

constexpr std::size_t headerSize = 8; // magic and length

/** The header that belongs to the text behind it. */
void writeHeader (std::span<std::uint8_t> chunk)
{
    constexpr std::array<std::uint8_t, 4> magic { 'V', 'C', '2', '!' };
    std::copy (magic.begin(), magic.end(), chunk.begin());

    const auto length = static_cast<std::uint32_t> (chunk.size() - headerSize);

    for (std::size_t i = 0; i < 4; ++i)
        chunk[magic.size() + i] = static_cast<std::uint8_t> (length >> (8 * i));
}

juce::MemoryBlock stateOf (Processor& processor)
{
    juce::MemoryBlock state;
    processor.getStateInformation (state);
    return state;
}

void load (Processor& processor, const juce::MemoryBlock& state)
{
    processor.setStateInformation (state.getData(), static_cast<int> (state.getSize()));
}

/** A chord in one block, as the host would send it next. */
void play (Processor& processor)
{
    juce::AudioBuffer<float> audio (2, 512);
    juce::MidiBuffer midi;

    for (const auto key : { 48, 60, 67 })
        midi.addEvent (juce::MidiMessage::noteOn (1, key, juce::uint8 (100)), 0);

    processor.processBlock (audio, midi);
}
} // namespace

extern "C" int LLVMFuzzerInitialize (int*, char***)
{
    Zn::Fuzz::startJuce();
    return 0;
}

extern "C" std::size_t
LLVMFuzzerCustomMutator (std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    return Zn::Fuzz::mutateBehindHeader ({ data, maxSize }, size, seed, headerSize, writeHeader);
}

/** Whatever a host brings, the plug-in plays on, and what it saves then comes back as it was. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    static auto& processor = *std::make_unique<Processor>().release(); // as long as JUCE runs
    static const auto initial = stateOf (processor);

    load (processor, initial);
    processor.setStateInformation (data, static_cast<int> (size));
    play (processor);

    const auto understood = stateOf (processor);
    load (processor, understood);

    if (stateOf (processor) != understood)
        std::abort();

    return 0;
}
