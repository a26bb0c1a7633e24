#pragma once

#include "Hosts/LV2Host.h"
#include "Hosts/VST3Host.h"
#include "Plugin/Projects.h"
#include "Support/TestPlayHead.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Zn::Tests
{
using Audio::Plugins::Vornel::documentIn;

inline constexpr auto blockSize = 256;
inline constexpr auto sampleRate = 48000.0; // hertz
inline constexpr auto blocksPerSecond = 48000 / blockSize;

/** A piece of music for a host to play: a chord of C, E and G held from start to end, under a transport that the
    script may move at the start of any block.
*/
struct Song
{
    std::function<void (TestPlayHead&, int block)> script = [] (auto&, int) {};
    int numBlocks = 0;
    std::vector<int> blockSizes { blockSize }; // samples, taken in turn
};

inline const Song oneSecond { .numBlocks = blocksPerSecond };

/** What came out of the plug-in. */
struct Performance
{
    struct Onset
    {
        int sample = 0, pitch = 0;
    };

    std::vector<Onset> onsets;
    juce::MidiBuffer events;  // all, by sample from the start; the keys are released at the very end
    std::vector<float> sound; // the left channel, if there is one
};

/** How much an LV2 host tells its plug-ins about the transport. */
enum class Talk
{
    changesInBars,   // a message when something changes, in bars and beats
    changesInFrames, // a message when something changes, in samples
    everyBlock       // all there is to tell, in every block
};

Performance play (LV2Host& host, const Song& song, Talk talk);
Performance play (VST3Host& host, const Song& song);

/** Whether the same notes start in both, at most one sample apart. */
testing::AssertionResult sameOnsets (const Performance& first, const Performance& second);

/** Whether both sound, and alike. */
testing::AssertionResult sameSound (const Performance& first, const Performance& second);
} // namespace Zn::Tests
