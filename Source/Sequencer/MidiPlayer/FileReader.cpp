#include "Sequencer/MidiPlayer/FileReader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Zn::Sequencer::MidiPlayer
{
namespace
{
constexpr std::size_t nameSize = 4, headSize = 8, headerSize = 6; // bytes; a head is a name and a length
constexpr std::uint32_t latestFormat = 2;
constexpr int sysex = 0xF0, escape = 0xF7, meta = 0xFF;
constexpr int endOfTrack = 0x2F;

std::uint32_t bigEndian (FileBytes bytes)
{
    std::uint32_t value = 0;

    for (const auto byte : bytes)
        value = (value << 8) | byte;

    return value;
}

struct Chunk
{
    std::string_view name;
    FileBytes content;
};

/** Takes a chunk off the front. */
std::optional<Chunk> takeChunk (FileBytes& rest)
{
    if (rest.size() < headSize)
        return {};

    const auto length = bigEndian (rest.subspan (nameSize, headSize - nameSize));
    const std::string_view name { reinterpret_cast<const char*> (rest.data()), nameSize };

    if (length > rest.size() - headSize)
        return {};

    const auto content = rest.subspan (headSize, length);
    rest = rest.subspan (headSize + length);
    return Chunk { name, content };
}

int numDataBytes (int status) noexcept
{
    const auto kind = status & 0xF0;
    return kind == 0xC0 || kind == 0xD0 ? 1 : 2;
}
} // namespace

std::optional<FileTracks> FileTracks::find (FileBytes file)
{
    const auto header = takeChunk (file);

    if (! header || header->name != "MThd" || header->content.size() < headerSize)
        return {};

    const auto format = bigEndian (header->content.first (2));
    const auto numTracks = bigEndian (header->content.subspan (2, 2));
    const auto division = bigEndian (header->content.subspan (4, 2));
    const auto countsFrames = (division & 0x8000) != 0;

    if (format > latestFormat || countsFrames || division == 0)
        return {};

    FileTracks found { static_cast<int> (division), {} };

    while (found.tracks.size() < numTracks)
    {
        const auto chunk = takeChunk (file);

        if (! chunk)
            return {};

        if (chunk->name == "MTrk")
            found.tracks.push_back (chunk->content);
    }

    return found;
}

std::optional<TrackReader::Event> TrackReader::next()
{
    while (! rest.empty())
    {
        const auto delta = readVariableLength();

        if (delta)
            tick += *delta;

        const auto event = delta ? readEvent() : std::nullopt;

        if (! event)
        {
            damaged = true;
            rest = {};
        }
        else if (event->status == meta && event->type == endOfTrack)
        {
            rest = {};
        }
        else if (event->status != sysex)
        {
            return event;
        }
    }

    return {};
}

std::optional<TrackReader::Event> TrackReader::readEvent()
{
    if (rest.empty())
        return {};

    const auto isNewStatus = rest.front() >= 0x80;
    const int status = isNewStatus ? *readByte() : runningStatus;

    if (status == meta || status == sysex || status == escape)
    {
        const auto type = status == meta ? readByte() : std::uint8_t { 0 };
        const auto length = type ? readVariableLength() : std::nullopt;
        const auto data = length ? read (*length) : std::nullopt;

        return data ? std::optional (Event { tick, status == meta ? meta : sysex, *type, *data })
                    : std::nullopt;
    }

    if (status < 0x80 || status >= sysex)
        return {};

    runningStatus = status;
    const auto data = read (static_cast<std::size_t> (numDataBytes (status)));
    const auto isData = [] (std::uint8_t byte) { return byte < 0x80; };

    return data && std::ranges::all_of (*data, isData) ? std::optional (Event { tick, status, 0, *data })
                                                       : std::nullopt;
}

std::optional<std::uint8_t> TrackReader::readByte()
{
    const auto byte = read (1);
    return byte ? std::optional (byte->front()) : std::nullopt;
}

std::optional<std::uint32_t> TrackReader::readVariableLength()
{
    constexpr auto longest = 4; // bytes
    std::uint32_t value = 0;

    for (auto i = 0; i < longest; ++i)
    {
        const auto byte = readByte();

        if (! byte)
            return {};

        value = (value << 7) | (*byte & 0x7Fu);

        if (*byte < 0x80)
            return value;
    }

    return {};
}

std::optional<FileBytes> TrackReader::read (std::size_t size)
{
    if (size > rest.size())
        return {};

    const auto bytes = rest.first (size);
    rest = rest.subspan (size);
    return bytes;
}
} // namespace Zn::Sequencer::MidiPlayer
