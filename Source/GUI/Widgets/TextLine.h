#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
constexpr auto narrowestSqueeze = 0.85f; // of a text's width, before it is cut

/** Draws one line of text: where its area is too small, narrower first, and then cut. Thread: message. */
inline void paintTextLine (juce::Graphics& g,
                           const juce::String& line,
                           const juce::Font& font,
                           juce::Rectangle<float> area,
                           juce::Justification justification,
                           juce::Colour colour)
{
    g.setFont (font);
    g.setColour (colour);
    g.drawFittedText (line, area.getSmallestIntegerContainer(), justification, 1, narrowestSqueeze);
}
} // namespace Zn::GUI
