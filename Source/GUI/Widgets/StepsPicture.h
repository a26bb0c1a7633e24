#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"
#include "Sequencer/TimedNote.h"

#include <vector>

namespace Zn::GUI
{
/** Draws a pattern in miniature, between its lowest and its highest row: louder notes are brighter, disabled ones faint.
    Thread: message.
*/
void paintSteps (juce::Graphics& g,
                 const AssetScheme::Canvas& canvas,
                 juce::Rectangle<float> area,
                 const std::vector<Sequencer::TimedNote>& steps);
} // namespace Zn::GUI
