#pragma once

#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer
{
/** How long a pattern lasts: a number of quarter notes, or bars. */
struct Duration
{
    double duration = 1.0; // quarter notes, in force when mode is not 0
    int mode = 0;          // 0: the bars count
    MusicalTime time;      // may hold a stale value while mode is not 0

    /** Quarter notes, 0 to longestTime. */
    double value() const noexcept;

    /** Makes the length a number of quarter notes. */
    void setQuarters (double quarters) noexcept;

    /** Names this among the fields of its owner: a child `Duration` with `Time`, `duration` and `mode`.
        Loading also understands a bare number `duration` among the owner's fields; when it is not negative it
        wins.
    */
    void reflectIn (Reflector& owner);

    /** The keys of the child. A `mode` may come as text; text that is no number leaves it alone. */
    void reflect (Reflector& r);

    bool operator== (const Duration&) const = default;
};
} // namespace Zn::Sequencer
