#pragma once

#include "Midi/SustainPedal/Processor.h"

namespace Zn::Midi::SustainPedal
{
/** A sustain pedal that keeps its own flag. */
class SimpleProcessor : public Processor
{
public:
    SimpleProcessor() noexcept : Processor (&isDown) {}

    /** Thread: any. */
    bool isPedalDown() const noexcept { return isDown.load(); }

private:
    std::atomic<bool> isDown { false }; // written: audio, read: any
};
} // namespace Zn::Midi::SustainPedal
