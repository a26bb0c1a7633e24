#pragma once

#include "Synth/Kernels/TableView.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <vector>

namespace Zn::Audio::WavetableSynth
{
/** Owns one cycle in the layout that oscillators read: see Kernels::TableView. It is never changed; a copy of the view
    lives as long as the table does, also when that is moved.
*/
class Wavetable
{
public:
    /** Of one or two channels, with at least two samples, each scaled by a gain. */
    explicit Wavetable (const juce::AudioBuffer<float>& cycle, float gain = 1.0f);

    const Kernels::TableView& view() const noexcept { return table; }

    Wavetable (Wavetable&&) noexcept = default;
    Wavetable& operator= (Wavetable&&) noexcept = default;

private:
    std::vector<float> storage;
    Kernels::TableView table;
};

/** What evens out the loudness of cycles: 1 - the RMS of the louder channel, never below 0. It is meant to be a
    subtraction; a loud cycle comes out softer than a soft one.
*/
float evenedLoudness (const juce::AudioBuffer<float>& cycle);
} // namespace Zn::Audio::WavetableSynth
