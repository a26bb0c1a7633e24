#pragma once

#include "Synth/Sampler/Source.h"

#include <memory>
#include <vector>

namespace Zn::Audio::WavetableSynth
{
/** Something that may become a wavetable: a name as lists show it, and where its sound comes from. */
struct TableSource
{
    juce::String displayName;
    std::unique_ptr<Sampler::Source> source;
};

/** The tables that are part of the program, in the order of the list. Empty in a build without them. */
std::vector<TableSource> factorySources();

/** The first 256 WAV files of a folder, without those of its folders, in natural order of their names. */
std::vector<TableSource> userSources (const juce::File& folder);

/** Where a user puts WAV files of single cycles. It need not exist, and is never made. */
juce::File userFolder();
} // namespace Zn::Audio::WavetableSynth
