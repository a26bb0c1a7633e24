#pragma once

#include "MeterMap.h"
#include "TempoMap.h"

#include <cstdint>
#include <optional>

namespace Zn::Render
{
struct Loop
{
    double startQuarters = 0.0;
    double endQuarters = 0.0;
};

/** Where in the song the clock is. */
struct SongPoint
{
    std::int64_t pass = 0;        // how often the loop has wrapped
    double quarters = 0.0;        // position in the song
    double seconds = 0.0;         // the same in real time
    double elapsedQuarters = 0.0; // since the start of the render: never goes back
};

/** The clock of one render: which position of the song each sample has, and the other way round.

    Sample 0 is the start of the song. With a loop the position goes back to the loop's start whenever it
    reaches its end.
*/
class SongTimeline
{
public:
    SongTimeline (TempoMap, MeterMap, double lengthQuarters, double sampleRate, std::optional<Loop> = {});

    SongPoint pointAt (std::int64_t sample) const noexcept;

    /** The last sample not behind the position, in the given pass: what happens there is in time for what the
        processor starts at the position. */
    std::int64_t sampleAt (std::int64_t pass, double quarters) const noexcept;

    /** Musical time since the start of the render at a position of the given pass. */
    double elapsedQuartersAt (std::int64_t pass, double quarters) const noexcept;

    /** How long the song lasts when it is played through once, without the loop. */
    std::int64_t getLengthSamples() const noexcept;

    const TempoMap& getTempoMap() const noexcept { return tempi; }
    const MeterMap& getMeterMap() const noexcept { return meters; }
    const std::optional<Loop>& getLoop() const noexcept { return loop; }
    double getSampleRate() const noexcept { return sampleRate; }

private:
    std::int64_t sampleFromSeconds (double seconds) const noexcept;

    /** When the pass begins in real time, less the song's own time at that place. */
    double secondsBefore (std::int64_t pass) const noexcept;

    TempoMap tempi;
    MeterMap meters;
    double lengthQuarters;
    double sampleRate;
    std::optional<Loop> loop;
    double loopStartSeconds = 0.0, loopEndSeconds = 0.0;
};
} // namespace Zn::Render
