#include "Sequencer/SlotSwitch.h"

#include "Sequencer/PatternData.h"

#include <cmath>
#include <utility>

namespace Zn::Sequencer
{
namespace
{
constexpr double gridTolerance = 1.0e-9; // quarter notes by which a sample may miss the grid

/** The grid on which slots change. */
struct Grid
{
    explicit Grid (double quantumToUse) noexcept
        : quantum (std::isfinite (quantumToUse) && quantumToUse > 0.0 ? quantumToUse : 1.0)
    {}

    double cellOf (double ppq) const noexcept { return std::floor ((ppq + gridTolerance) / quantum); }
    double lineBefore (double ppq) const noexcept { return cellOf (ppq) * quantum; }
    double lineAfter (double ppq) const noexcept { return (std::floor (ppq / quantum) + 1.0) * quantum; }

    double quantum; // quarter notes
};

/** The first sample that lies in another cell of the grid than the sample before it. */
std::optional<int> firstCrossing (std::span<const double> ppq, double before, const Grid& grid) noexcept
{
    auto cell = grid.cellOf (before);

    for (std::size_t i = 0; i < ppq.size(); ++i)
        if (const auto previous = std::exchange (cell, grid.cellOf (ppq[i])); cell != previous)
            return static_cast<int> (i);

    return {};
}

void showSwitch (LiveSlots& live, double comes, double came) noexcept
{
    live.switchPosition.store (comes);
    live.switchedPosition.store (came);
}
} // namespace

std::optional<SlotChange> SlotSwitch::update (const ClockSlice& clock, LiveSlots& live) noexcept
{
    takePending (clock, live);

    const auto before = std::exchange (lastPpq, clock.ppq.back());
    const auto wanted = live.index.load();

    if (wanted == live.heard.load())
        return {};

    if (immediate || ! live.enable.load() || ! clock.isPlaying)
    {
        live.heard.store (wanted);
        showSwitch (live, -1.0, -1.0);
        return SlotChange { 0, wanted, 0.0 };
    }

    const Grid grid { live.quantum.load() };
    const auto sample = firstCrossing (clock.ppq, before.value_or (clock.ppq.front()), grid);

    if (! sample)
        return {};

    const auto anchor = grid.lineBefore (clock.ppq[static_cast<std::size_t> (*sample)]);
    live.heard.store (wanted);
    showSwitch (live, -1.0, anchor);
    return SlotChange { *sample, wanted, anchor };
}

void SlotSwitch::takePending (const ClockSlice& clock, LiveSlots& live) noexcept
{
    const auto pending = live.pending.exchange (-1);

    if (pending < 0)
        return;

    const auto wanted = pending % numSlots;
    live.index.store (wanted);
    immediate = ! clock.isPlaying;

    if (immediate)
        showSwitch (live, -1.0, -1.0);
    else if (wanted == live.heard.load())
        live.switchPosition.store (-1.0); // asked back before the change came
    else
        live.switchPosition.store (Grid { live.quantum.load() }.lineAfter (clock.ppq.front()));
}
} // namespace Zn::Sequencer
