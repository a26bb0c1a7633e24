#pragma once

#include "Parameters/ParamHolder.h"
#include "Synth/WavetableSynth/OscillatorParam.h"

namespace Zn::GUI
{
/** An oscillator's table as the editor chooses it: a menu of categories, in which the tables have their full names.
    Thread: message.
*/
class WavetableChoice : public Audio::WavetableSynth::OSCForwarder
{
public:
    explicit WavetableChoice (Audio::ParamHolder<Audio::WavetableSynth::OscillatorParam>& holder);

    Parameters::MenuItems::Item getMenuChoices() override;

private:
    Audio::WavetableSynth::OscillatorParam& table;
};
} // namespace Zn::GUI
