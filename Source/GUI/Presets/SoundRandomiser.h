#pragma once

#include "Plugin/Vornel/Params.h"

namespace Zn::GUI
{
/** Turns every knob of the sound to some place where it still is one: levels, and whether the synth is on, stay as they
    are. The host hears of each. Thread: message.
*/
void randomise (Audio::Plugins::Vornel::SoundParams& sound, juce::Random& random);
} // namespace Zn::GUI
