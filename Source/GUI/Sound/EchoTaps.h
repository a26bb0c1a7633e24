#pragma once

#include <vector>

namespace Zn::GUI
{
/** What the delay's picture is made from. */
struct EchoSettings
{
    double seconds = 0.1; // between two echoes
    float feedback = 0.0f, mix = 0.0f, analog = 0.0f;

    bool operator== (const EchoSettings&) const = default;
};

/** One line of the picture: when something sounds, and how. */
struct EchoTap
{
    double seconds = 0.0;
    float decibels = 0.0f;
    float brightness = 1.0f; // what the tone filter leaves of the treble, 0..1
};

/** How much of a bright sound gets through the tone once, 0..1: 1 where nothing is taken away. */
float toneBrightness (float analog);

/** The sound itself and its echoes, as long as they can be heard and up to the longest time. Without any mix the echoes
    are as they would be in full, since they can still be edited.
*/
std::vector<EchoTap> echoTaps (const EchoSettings&, double longestSeconds, float quietestDecibels);
} // namespace Zn::GUI
