#pragma once

#include "Synth/Kernels/TableView.h"

#include <juce_graphics/juce_graphics.h>

#include <vector>

namespace Zn::GUI
{
/** The left side of a table's one cycle as a line of so many columns: x is a proportion of the cycle, y the level.

    Each column keeps its lowest and its highest sample at the places where they lie, so that a line through all points
    neither loses a peak nor shows one that is not there, however few columns there are. Thread: message.
*/
std::vector<juce::Point<float>> waveShape (const Audio::Kernels::TableView& table, int numColumns);

/** How far the upper voice of a unison pair is ahead of the lower one in the picture, as a proportion of a cycle: what it
    gains within some cycles that begin together. 0 for a single voice.
*/
float unisonLead (int numVoices, float spread);

/** The same line moved to the left, the part that leaves coming in again at the right. */
std::vector<juce::Point<float>> movedAhead (const std::vector<juce::Point<float>>& shape, float lead);
} // namespace Zn::GUI
