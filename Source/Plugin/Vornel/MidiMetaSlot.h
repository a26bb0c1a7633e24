#pragma once

#include "Sequencer/PatternSlot.h"

namespace Zn::Audio::Plugins::Vornel
{
/** What one of the eight slot buttons stands for. */
using MidiMetaSlot = Sequencer::PatternSlot;
} // namespace Zn::Audio::Plugins::Vornel
