#include "Sequencer/PatternSlot.h"

namespace Zn::Sequencer
{
PatternSlot::PatternSlot()
{
    constexpr auto columnsOfEmptyDrawing = 16;

    pattern.grid = columnsOfEmptyDrawing;
    pattern.layOut (0);
}

double PatternSlot::length() const noexcept
{
    return multiply ? pattern.grid * time.length() : time.length();
}

void PatternSlot::reset()
{
    *this = PatternSlot();
    pattern.callListeners();
}

void PatternSlot::reflect (Reflector& r)
{
    r.add ("Multiply", multiply);
    r.addChild ("Pattern", pattern);
    r.addChild ("Time", time);
}
} // namespace Zn::Sequencer
