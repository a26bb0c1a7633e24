#pragma once

#include "Midi/PitchLimits.h"

namespace Zn::Audio::Plugins::Vornel
{
/** The parameters that steer a segment, read once at its start. */
struct MidiSettings
{
    int transposeSemitones = 0; // the key or the transposition, and the octaves
    Midi::PitchLimits limits;
    double quantum = 1.0; // quarter notes between the moments at which a slot may change
    bool keyMode = false; // every note event rebuilds the pitch table
    bool retrigger = false;
    bool arpActive = true;
    bool playsFile = false; // the MIDI player takes the place of the keys
};
} // namespace Zn::Audio::Plugins::Vornel
