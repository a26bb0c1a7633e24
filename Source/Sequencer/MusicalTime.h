#pragma once

#include "Sequencer/Bars.h"

#include <functional>

namespace Zn::Sequencer
{
/** Bars that tell when one of them is changed, so that what is laid out over them can follow.

    Copies take the bars and leave the listener: it belongs to the one who owns the original.
    Thread: message.
*/
class MusicalTime
{
public:
    using BarListener = std::function<void (int index, Bar oldBar, Bar newBar)>;

    MusicalTime() = default;
    explicit MusicalTime (Bar onlyBar) : bars { { onlyBar } } {}

    MusicalTime (const MusicalTime& other) : bars (other.bars) {}
    MusicalTime& operator= (const MusicalTime& other);

    const Bars& getBars() const noexcept { return bars; }

    /** Changes one bar. The listener hears of it only when the bar differs; an index outside does nothing. */
    void setBar (int index, Bar newBar);

    /** Changes all bars; the listener is not told. */
    void setBars (Bars newBars) { bars = std::move (newBars); }

    void setListener (BarListener newListener) { listener = std::move (newListener); }

    /** Quarter notes. */
    double length() const noexcept { return bars.length(); }

    /** Loading does not tell the listener: what lies over the bars is loaded along with them. */
    void reflect (Reflector& r) { bars.reflect (r); }

    bool operator== (const MusicalTime& other) const { return bars == other.bars; }

private:
    Bars bars;
    BarListener listener;
};
} // namespace Zn::Sequencer
