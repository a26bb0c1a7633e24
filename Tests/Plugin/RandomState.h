#pragma once

#include "Plugin/Vornel/State.h"

namespace Zn::Audio::Plugins::Vornel
{
/** Gives everything that a document holds another value, within what the editor and the host can set: all parameters,
    patterns with chance and spread, and what only a project keeps.
*/
void randomise (State& state, juce::Random& random);

/** The same for the parameters of a list. */
void randomise (const ParamList& params, juce::Random& random);
} // namespace Zn::Audio::Plugins::Vornel
