#include "TrackCursor.h"

#include "Errors.h"

#include <algorithm>

namespace Zn::Render
{
namespace
{
constexpr std::uint8_t firstStatus = 0x80;
constexpr std::uint8_t sysexEscapeStatus = 0xf7;
constexpr std::uint8_t endOfTrack = 0x2f;
constexpr int bitsPerQuantityByte = 7;
constexpr int longestQuantityBytes = 4;

std::size_t dataBytesOf (std::uint8_t status)
{
    const auto kind = status & 0xf0;
    return kind == 0xc0 || kind == 0xd0 ? 1 : 2; // program change and channel pressure have one
}
} // namespace

TrackCursor::TrackCursor (std::span<const std::uint8_t> chunk) : rest (chunk)
{
    advance();
}

void TrackCursor::advance()
{
    onEvent = ! rest.empty() && ! event.isMeta (endOfTrack);

    if (! onEvent)
        return;

    event.tick += readQuantity();
    readStatus();
    readData();
    onEvent = ! event.isMeta (endOfTrack);
}

std::uint8_t TrackCursor::readByte()
{
    return readBytes (1).front();
}

std::uint32_t TrackCursor::readQuantity()
{
    std::uint32_t quantity = 0;

    for (auto i = 0; i < longestQuantityBytes; ++i)
    {
        const auto byte = readByte();
        quantity = (quantity << bitsPerQuantityByte) | (byte & 0x7fu);

        if (byte < firstStatus)
            return quantity;
    }

    throw FileError ("is damaged: a number in a track does not end");
}

std::span<const std::uint8_t> TrackCursor::readBytes (std::size_t count)
{
    if (count > rest.size())
        throw FileError ("is damaged: an event goes beyond the end of its track");

    const auto bytes = rest.first (count);
    rest = rest.subspan (count);
    return bytes;
}

void TrackCursor::readStatus()
{
    if (rest.empty() || rest.front() >= firstStatus)
        event.status = readByte();
    else
        event.status = runningStatus;

    if (event.status < firstStatus)
        throw FileError ("is damaged: a track begins without a status byte");

    if (event.isChannelMessage())
        runningStatus = event.status; // kept across meta events, as many files rely on it
}

void TrackCursor::readData()
{
    if (event.isChannelMessage())
    {
        event.data = readBytes (dataBytesOf (event.status));

        if (std::ranges::any_of (event.data, [] (auto byte) { return byte >= firstStatus; }))
            throw FileError ("is damaged: a data byte of a message is above 127");

        return;
    }

    if (event.status == TrackEvent::metaStatus)
        event.metaType = readByte();
    else if (event.status != TrackEvent::sysexStatus && event.status != sysexEscapeStatus)
        throw FileError ("is damaged: a track holds a message that files cannot hold");

    event.data = readBytes (readQuantity());
}
} // namespace Zn::Render
