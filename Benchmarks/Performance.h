#pragma once

#include "Plugin/Vornel/Processor.h"
#include "Support/TestPlayHead.h"

namespace Zn::Audio::Plugins::Vornel
{
/** The whole plug-in under a host that plays, block by block. */
class Performance
{
public:
    static constexpr double rate = 48000.0;

    explicit Performance (int blockSize) : audio (2, blockSize) { midi.ensureSize (32768); }
    ~Performance() { processor.setPlayHead (nullptr); }

    Performance (const Performance&) = delete;
    Performance& operator= (const Performance&) = delete;

    void start()
    {
        processor.setPlayHead (&song);
        processor.prepareToPlay (rate, audio.getNumSamples());
    }

    /** Presses keys with the next block. */
    void holdKeys (int numKeys, int lowest, int interval)
    {
        for (auto key = 0; key < numKeys; ++key)
            midi.addEvent (juce::MidiMessage::noteOn (1, lowest + interval * key, juce::uint8 (100)), 0);
    }

    void nextBlock()
    {
        processor.processBlock (audio, midi);
        midi.clear();
        song.advance (audio.getNumSamples());
    }

    Processor processor { StartUp::empty };

private:
    Tests::TestPlayHead song { rate };
    juce::AudioBuffer<float> audio;
    juce::MidiBuffer midi;
};
} // namespace Zn::Audio::Plugins::Vornel
