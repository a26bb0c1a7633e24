#pragma once

#include "Synth/Kernels/Envelope.h"
#include "Synth/Kernels/TableView.h"

#include <array>

namespace Zn::Audio::WavetableSynth
{
constexpr int numOscillators = 4;

struct OscillatorSettings
{
    bool enabled = true;
    Kernels::TableView table;
    int octave = 0;        // -3..3
    int tune = 0;          // semitones
    int unison = 1;        // 1 or 2 voices
    float spread = 0.5f;   // 0..1, of the unison pair
    float volume = 0.178f; // gain; it steps from block to block
};

struct SubSettings
{
    Kernels::TableView table;
    int octave = -2;     // -3..3
    float volume = 1.0f; // gain, of which a tenth is heard
};

struct FilterSettings
{
    bool enabled = true; // false also where the cutoff stands at its top
    float cutoffHz = 8000.0f;
    float resonance = 1.0f;   // Q
    float keyTracking = 1.0f; // 0..1, how much of the note's frequency is added to the cutoff
};

/** What all voices of a block share: the parameters, read once. */
struct VoiceSettings
{
    std::array<OscillatorSettings, numOscillators> oscillators;
    SubSettings sub;
    FilterSettings filter;
    Kernels::EnvelopeRates envelope;
    double sampleRate = 44100.0; // hertz
};
} // namespace Zn::Audio::WavetableSynth
