#pragma once

#include <jack/transport.h>

namespace Zn::Test
{
/** Where a song's quarter notes lie on the frames of JACK's transport, from one known place on. */
struct JackTempoMap
{
    double frame = 0.0, quarters = 0.0; // the known place
    double tempo = 120.0;               // quarter notes a minute

    double quartersAt (double otherFrame, double sampleRate) const noexcept;
    double frameOf (double otherQuarters, double sampleRate) const noexcept;

    /** Adds bar, beat and tick in 4/4 to a position that has its frame, as programs with a timebase do. */
    void fillInBars (jack_position_t& position, double sampleRate) const noexcept;
};
} // namespace Zn::Test
