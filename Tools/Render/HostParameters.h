#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <string>

namespace Zn::Render
{
/** The parameter with an identifier. Throws ArgumentError if there is none. */
juce::AudioProcessorParameter& findParameter (const juce::AudioProcessor&, const juce::String& identifier);

/** Sets a parameter as a host does that lets its user type: by identifier and display text.

    Throws ArgumentError if there is no such parameter, or if the text is none of its values.
*/
void setParameter (juce::AudioProcessor&, const juce::String& identifier, const juce::String& text);

/** A table of the host parameters: identifier, name, current text and the texts it can have. */
juce::String listParameters (const juce::AudioProcessor&);
} // namespace Zn::Render
