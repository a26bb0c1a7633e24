#pragma once

#include "HeldKeys.h"
#include "TrackCursor.h"

#include <span>
#include <vector>

namespace Zn::Render
{
/** What a keyboard would send, with its place in the song. */
struct SongEvent
{
    double quarters = 0.0;
    std::uint8_t status = 0;
    std::span<const std::uint8_t> data {}; // behind the status; points into the file
};

/** The messages of all tracks in order of time, merged as they are read. A plain value: a copy is a bookmark.

    At one tick tracks follow each other as in the file, but what ends a sounding note comes before what
    starts one, so that a repeated note is heard as two however the file was written.
*/
class EventStream
{
public:
    /** The tracks must have been walked through without an error before, and outlive the stream. */
    EventStream (std::span<const std::span<const std::uint8_t>> tracks, int ticksPerQuarter);

    /** Null behind the last event. */
    const SongEvent* peek() const noexcept { return next < pending.size() ? &pending[next] : nullptr; }
    void pop();

private:
    void collectNextTick();
    std::int64_t findNextTick() const;
    void collect (TrackCursor&, std::int64_t tick);
    void bringReleasesForward();

    std::vector<TrackCursor> cursors;
    int ticksPerQuarter;
    std::vector<SongEvent> pending; // of one tick
    std::size_t next = 0;
    HeldKeys held; // before the pending events
};
} // namespace Zn::Render
