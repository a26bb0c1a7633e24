#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <optional>

/** What the forwarders have in common: reading and setting a host-visible parameter of any kind. */
namespace Zn::Parameters
{
/** The normalised value that a parameter takes when it is given one: limited to 0..1, snapped to its steps.
    None when it is not finite, which every caller drops. A switch is on strictly above 0.5, and stored as 1 or
    0, so that the audio side and the editor cannot read the middle differently. Thread: any.
*/
std::optional<float> legalNormalised (const juce::AudioProcessorParameter& target, float normalised) noexcept;

/** The same for a parameter whose range is known. */
std::optional<float> legalNormalised (const juce::RangedAudioParameter& target, float normalised) noexcept;

/** The value in the parameter's own unit; the normalised value of a parameter without a range. Thread: any. */
float plainValueOf (const juce::AudioProcessorParameter& target) noexcept;

/** Sets a value in the parameter's own unit, limited to its range, and tells the host. What is not finite is
    dropped.
*/
void setPlainValue (juce::AudioProcessorParameter& target, double value);

/** Sets a whole number: the value of a number, the index of a choice, each limited to its range. A number that
    has it already is left alone.
*/
void setWholeNumber (juce::AudioProcessorParameter& target, int value);

/** Sets a legal normalised value and tells the host. */
void setNormalised (juce::AudioProcessorParameter& target, float normalised);

/** The text for a normalised value. */
juce::String textOf (const juce::AudioProcessorParameter& target, float normalised);

/** The text of the current value. */
juce::String currentTextOf (const juce::AudioProcessorParameter& target);

/** Sets the value that a text stands for and tells the host. */
void setFromText (juce::AudioProcessorParameter& target, const juce::String& text);

/** Where a gesture on a parameter goes: to the parameter that the host knows it by, to itself when the host
    knows it, else nowhere, since JUCE forbids gestures on a parameter without an index.
*/
juce::AudioProcessorParameter* gestureParameterOf (juce::AudioProcessorParameter& target,
                                                   juce::AudioProcessorParameter* hostSide) noexcept;
} // namespace Zn::Parameters
