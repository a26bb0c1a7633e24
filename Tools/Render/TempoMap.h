#pragma once

#include <span>
#include <vector>

namespace Zn::Render
{
struct TempoChange
{
    double quarters = 0.0;
    double bpm = 120.0; // quarter notes per minute
};

/** Converts between musical and real time for a song whose tempo changes in steps.

    Before the first change the tempo is that of MIDI files without one, 120. The last tempo goes on for ever.
*/
class TempoMap
{
public:
    TempoMap();

    /** Changes in any order; of several at one position the last one counts. */
    explicit TempoMap (std::vector<TempoChange> changes);

    double secondsFromQuarters (double quarters) const noexcept;
    double quartersFromSeconds (double seconds) const noexcept;
    double bpmAt (double quarters) const noexcept;

    /** In order of time, the first at position 0. */
    std::span<const TempoChange> getChanges() const noexcept { return changes; }

private:
    std::size_t indexAt (double quarters) const noexcept;

    std::vector<TempoChange> changes;
    std::vector<double> seconds; // of each change
};
} // namespace Zn::Render
