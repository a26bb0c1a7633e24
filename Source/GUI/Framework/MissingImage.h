#pragma once

#include <juce_graphics/juce_graphics.h>

namespace Zn::GUI
{
/** What stands in the place of an image that is not in the program. */
juce::String missingResource (const juce::String& fileName);

/** What stands in the place of a resource that is no image. */
juce::String missingImage (const juce::String& fileName);

/** Draws those words in the image's place; no box opens. Thread: message. */
void drawMissing (juce::Graphics& g, juce::Rectangle<float> area, const juce::String& words);
} // namespace Zn::GUI
