#pragma once

#include "Synth/Kernels/TableView.h"

#include <juce_graphics/juce_graphics.h>

#include <vector>

namespace Zn::GUI
{
using WaveLine = std::vector<juce::Point<float>>;

/** The left side of a table's one cycle as a line of so many columns: x is a proportion of the cycle, y the level.

    Each column keeps its lowest and its highest sample at the places where they lie, so that a line through all points
    neither loses a peak nor shows one that is not there, however few columns there are. Thread: message.
*/
WaveLine waveShape (const Audio::Kernels::TableView& table, int numColumns);

/** How far the upper voice of a unison pair is ahead of the lower one in the picture, as a proportion of a cycle: what it
    gains within some cycles that begin together. 0 for a single voice.
*/
float unisonLead (int numVoices, float spread);

/** The same line moved to the left, the part that leaves coming in again at the right. */
WaveLine movedAhead (const WaveLine& shape, float lead);

/** From proportions and levels to pixels. Quiet tables are as high as loud ones: it is the shape that counts. */
void fitWave (WaveLine& shape, juce::Rectangle<float> area);
} // namespace Zn::GUI
