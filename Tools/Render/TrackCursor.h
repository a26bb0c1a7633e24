#pragma once

#include <cstdint>
#include <span>

namespace Zn::Render
{
/** One event of a track; the data points into the file. */
struct TrackEvent
{
    static constexpr std::uint8_t metaStatus = 0xff;
    static constexpr std::uint8_t sysexStatus = 0xf0;

    std::int64_t tick = 0;
    std::uint8_t status = 0;               // running status filled in
    std::uint8_t metaType = 0;             // of a meta event only
    std::span<const std::uint8_t> data {}; // what follows the status, without type and length

    bool isChannelMessage() const noexcept { return status < sysexStatus; }
    bool isMeta (std::uint8_t type) const noexcept { return status == metaStatus && metaType == type; }
};

/** Walks through one track chunk, event by event. A plain value: a copy is a bookmark. */
class TrackCursor
{
public:
    TrackCursor() = default;

    /** Stands on the first event. The bytes must outlive the cursor. Throws FileError when they are damaged.
    */
    explicit TrackCursor (std::span<const std::uint8_t> chunk);

    /** False behind the end-of-track event, or behind the last byte if there is none. */
    bool isOnEvent() const noexcept { return onEvent; }
    const TrackEvent& getEvent() const noexcept { return event; }

    /** Goes to the next event. Throws FileError when it is damaged. */
    void advance();

    /** Tick of the last event; the track's length once it has been walked through. */
    std::int64_t getTick() const noexcept { return event.tick; }

private:
    std::uint8_t readByte();
    std::uint32_t readQuantity();
    std::span<const std::uint8_t> readBytes (std::size_t count);
    void readStatus();
    void readData();

    std::span<const std::uint8_t> rest {};
    TrackEvent event;
    std::uint8_t runningStatus = 0;
    bool onEvent = false;
};
} // namespace Zn::Render
