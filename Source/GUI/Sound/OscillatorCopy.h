#pragma once

#include "Synth/WavetableSynth/Params.h"

namespace Zn::GUI
{
/** Makes one oscillator like another: table, pitch, level and whether it is on. As one gesture of each parameter that
    becomes another. Whether there was any. Thread: message.
*/
bool copyOscillator (Audio::WavetableSynth::OSCParams& from, Audio::WavetableSynth::OSCParams& to);

bool swapOscillators (Audio::WavetableSynth::OSCParams& one, Audio::WavetableSynth::OSCParams& other);
} // namespace Zn::GUI
