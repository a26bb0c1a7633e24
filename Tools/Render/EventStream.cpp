#include "EventStream.h"

#include <algorithm>
#include <limits>

namespace Zn::Render
{
namespace
{
constexpr auto noTick = std::numeric_limits<std::int64_t>::max();

bool isKindOf (const SongEvent& event, int kind)
{
    return (event.status & 0xf0) == kind;
}

bool isNoteOff (const SongEvent& event)
{
    return isKindOf (event, 0x80) || (isKindOf (event, 0x90) && event.data[1] == 0);
}

/** Whole messages only: not the pieces of one that a file may send a part at a time. */
bool isPlayable (const TrackEvent& event)
{
    return event.isChannelMessage()
           || (event.status == TrackEvent::sysexStatus && ! event.data.empty() && event.data.back() == 0xf7);
}
} // namespace

EventStream::EventStream (std::span<const std::span<const std::uint8_t>> tracks, int ticks)
    : cursors (tracks.begin(), tracks.end()), ticksPerQuarter (ticks)
{
    collectNextTick();
}

void EventStream::pop()
{
    if (++next >= pending.size())
        collectNextTick();
}

void EventStream::collectNextTick()
{
    for (const auto& event : pending)
        held.apply (event.status, event.data);

    pending.clear();
    next = 0;

    while (pending.empty())
    {
        std::erase_if (cursors, [] (const auto& cursor) { return ! cursor.isOnEvent(); });
        const auto tick = findNextTick();

        if (tick == noTick)
            return;

        for (auto& cursor : cursors)
            collect (cursor, tick);
    }

    bringReleasesForward();
}

std::int64_t EventStream::findNextTick() const
{
    auto tick = noTick;

    for (const auto& cursor : cursors)
        tick = std::min (tick, cursor.getTick());

    return tick;
}

void EventStream::collect (TrackCursor& cursor, std::int64_t tick)
{
    for (; cursor.isOnEvent() && cursor.getTick() == tick; cursor.advance())
        if (const auto& event = cursor.getEvent(); isPlayable (event))
            pending.push_back ({ static_cast<double> (tick) / ticksPerQuarter, event.status, event.data });
}

/** A note-off without a sounding note belongs to a note of no length and stays behind its note-on. */
void EventStream::bringReleasesForward()
{
    auto stillHeld = held;
    std::vector<SongEvent> releases, others;

    for (const auto& event : pending)
    {
        const auto endsNote = isNoteOff (event) && stillHeld.isDown (event.status & 0x0f, event.data[0]);
        (endsNote ? releases : others).push_back (event);

        if (endsNote)
            stillHeld.apply (event.status, event.data);
    }

    pending = std::move (releases);
    pending.insert (pending.end(), others.begin(), others.end());
}
} // namespace Zn::Render
