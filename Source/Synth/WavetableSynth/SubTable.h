#pragma once

#include "Synth/WavetableSynth/Wavetable.h"

namespace Zn::Audio::WavetableSynth
{
/** The sine of the sub oscillator. Both sides of the sound read its one channel.

    All instances in a process share the one of get(), as they do SampleList. Thread: built on any but audio, read on
    any.
*/
class SubTable
{
public:
    static const SubTable& get();

    SubTable();

    const Kernels::TableView& view() const noexcept { return table.view(); }

private:
    Wavetable table;
};
} // namespace Zn::Audio::WavetableSynth
