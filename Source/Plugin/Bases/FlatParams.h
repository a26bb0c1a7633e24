#pragma once

#include <juce_audio_processors/juce_audio_processors.h>
#include <nlohmann/json.hpp>

/** The exact values of a host's parameters beside the texts of a state, which are rounded for reading: an array of
    numbers 0..1 in the order of the host's list, under one more key of the state's document.
*/
namespace Zn::Audio::Plugin::FlatParams
{
using List = juce::Array<juce::AudioProcessorParameter*>;

inline constexpr auto key = "FlatParams";

/** The values as they are now. Thread: any but audio. */
nlohmann::json get (const List& parameters);

/** Sets each parameter that has another value, telling the host. What the array has too many is ignored, what it
    lacks stays. An entry that is no number throws json error 302, "type must be number, but is ..."; those before
    it are set then. Thread: any.
*/
void set (const List& parameters, const nlohmann::json& values);
} // namespace Zn::Audio::Plugin::FlatParams
