#pragma once

#include "Sequencer/CellSet.h"

#include <utility>

namespace Zn::Sequencer
{
/** Remembers what sounds, so that no note is left hanging when its pattern changes under it.

    In each run the notes of the pattern claim their cells; the sweep at the run's end names the cells that
    sounded before and were not claimed again. A step that its chance keeps silent takes its cell all the same,
    or it would draw again in the next run. Thread: audio.
*/
class PlayState
{
public:
    bool isSounding (Cell cell) const noexcept { return sounding.contains (cell); }
    bool isSilent() const noexcept { return numSounding == 0; }

    /** Marks a cell as sounding and wanted. */
    void claim (Cell cell) noexcept
    {
        numSounding += sounding.contains (cell) ? 0 : 1;
        sounding.add (cell);
        claimed.add (cell);
    }

    void end (Cell cell) noexcept
    {
        numSounding -= sounding.contains (cell) ? 1 : 0;
        sounding.remove (cell);
        claimed.remove (cell);
    }

    const CellSet& getSounding() const noexcept { return sounding; }

    /** Ends every cell that is unclaimed, makes the claimed ones unclaimed, and returns what it ended. */
    CellSet sweep() noexcept
    {
        const auto ended = sounding.without (claimed);
        ended.forEach ([this] (Cell) { --numSounding; });
        sounding = std::exchange (claimed, {});
        return ended;
    }

private:
    CellSet sounding; // holds all of `claimed`
    CellSet claimed;
    int numSounding = 0;
};
} // namespace Zn::Sequencer
