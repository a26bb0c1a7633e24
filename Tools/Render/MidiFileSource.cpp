#include "MidiFileSource.h"

#include "Errors.h"
#include "Foundation/NativePath.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace Zn::Render
{
namespace
{
using Bytes = std::span<const std::uint8_t>;

constexpr std::string_view headerName = "MThd";
constexpr std::string_view trackName = "MTrk";
constexpr std::size_t chunkHeadBytes = 8; // name and length
constexpr std::size_t headerBytes = 6;
constexpr std::uint8_t tempoType = 0x51;
constexpr std::uint8_t meterType = 0x58;
constexpr double microsecondsPerMinute = 60.0e6;
constexpr int largestFileBytes = 256 << 20; // a day of dense music fits in

std::uint32_t bigEndian (Bytes bytes)
{
    std::uint32_t value = 0;

    for (const auto byte : bytes)
        value = (value << 8) | byte;

    return value;
}

bool startsWith (Bytes bytes, std::string_view name)
{
    return std::ranges::equal (bytes.first (std::min (bytes.size(), name.size())),
                               name.substr (0, bytes.size()));
}

std::string nameOf (const juce::File& file)
{
    return file.getFullPathName().toStdString();
}

std::vector<std::uint8_t> bytesOf (const juce::File& file)
{
    std::error_code ignored;
    const auto path = nativePath (file);

    if (! std::filesystem::exists (path, ignored))
        throw FileError ("does not exist");

    if (std::filesystem::is_directory (path, ignored))
        throw FileError ("is a directory, not a MIDI file");

    if (! std::filesystem::is_regular_file (path, ignored))
        throw FileError ("is not a regular file");

    juce::FileInputStream stream (file);

    if (stream.failedToOpen())
        throw FileError ("cannot be opened: " + stream.getStatus().getErrorMessage().toStdString());

    const auto size = stream.getTotalLength();

    if (size > largestFileBytes)
        throw FileError ("is too large for a MIDI file");

    std::vector<std::uint8_t> bytes (static_cast<std::size_t> (size));

    if (size > 0 && stream.read (bytes.data(), static_cast<int> (size)) != size)
        throw FileError ("cannot be read");

    return bytes;
}

/** Adds what is in front of the text of errors thrown meanwhile. */
template <typename Action>
auto namingFile (const juce::File& file, Action action)
{
    try
    {
        return action();
    }
    catch (const FileError& error)
    {
        throw FileError (nameOf (file) + ": " + error.what());
    }
}
} // namespace

MidiFileSource::MidiFileSource (const juce::File& file)
{
    namingFile (file, [&] {
        bytes = bytesOf (file);
        read();
    });
}

MidiFileSource::MidiFileSource (std::vector<std::uint8_t> given) : bytes (std::move (given))
{
    read();
}

EventStream MidiFileSource::getEvents() const
{
    return EventStream (tracks, ticksPerQuarter);
}

void MidiFileSource::read()
{
    findTracks (readHeader());
    readTracks();
}

/** Gives the position of the first chunk behind the header. */
std::size_t MidiFileSource::readHeader()
{
    const auto all = Bytes (bytes);

    if (all.empty())
        throw FileError ("is empty");

    if (! startsWith (all, headerName))
        throw FileError ("is not a MIDI file");

    if (all.size() < chunkHeadBytes + headerBytes)
        throw FileError ("is truncated: it ends within its header");

    const auto length = bigEndian (all.subspan (headerName.size(), 4));
    const auto header = all.subspan (chunkHeadBytes, headerBytes);
    const auto format = bigEndian (header.first (2));
    const auto division = bigEndian (header.subspan (4, 2));

    if (length < headerBytes)
        throw FileError ("is damaged: its header is too short");

    if (length > all.size() - chunkHeadBytes)
        throw FileError ("is truncated: it ends within its header");

    if (format > 1)
        throw FileError ("is of format " + std::to_string (format)
                         + "; only formats 0 and 1 can be rendered");

    if ((division & 0x8000) != 0)
        throw FileError (
            "counts time in SMPTE frames; only files that count in quarter notes can be rendered");

    if (division == 0)
        throw FileError ("is damaged: it divides quarter notes into 0 ticks");

    expectedTracks = bigEndian (header.subspan (2, 2));
    ticksPerQuarter = static_cast<int> (division);
    return chunkHeadBytes + length;
}

/** Chunks of other kinds are allowed between the tracks, and anything behind the last one. */
void MidiFileSource::findTracks (std::size_t firstChunk)
{
    auto rest = Bytes (bytes).subspan (firstChunk);

    while (tracks.size() < expectedTracks)
    {
        const auto number = std::to_string (tracks.size() + 1) + " of " + std::to_string (expectedTracks);

        if (rest.size() < chunkHeadBytes)
            throw FileError ("is truncated: track " + number + " is missing");

        const auto length = bigEndian (rest.subspan (4, 4));
        const auto content = rest.subspan (chunkHeadBytes);

        if (length > content.size())
            throw FileError ("is truncated: it ends within track " + number);

        if (startsWith (rest, trackName))
            tracks.push_back (content.first (length));

        rest = content.subspan (length);
    }
}

void MidiFileSource::readTracks()
{
    std::vector<TempoChange> tempoChanges;
    std::vector<MeterChange> meterChanges;

    for (const auto& track : tracks)
    {
        TrackCursor cursor (track);

        for (; cursor.isOnEvent(); cursor.advance())
        {
            const auto& event = cursor.getEvent();
            const auto& data = event.data;
            const auto quarters = static_cast<double> (event.tick) / ticksPerQuarter;

            if (event.isMeta (tempoType) && data.size() == 3 && bigEndian (data) > 0)
                tempoChanges.push_back ({ quarters, microsecondsPerMinute / bigEndian (data) });
            else if (event.isMeta (meterType) && data.size() >= 2 && data[0] > 0 && data[1] < 8)
                meterChanges.push_back ({ quarters, data[0], 1 << data[1] });
        }

        lengthQuarters = std::max (lengthQuarters, static_cast<double> (cursor.getTick()) / ticksPerQuarter);
    }

    tempi = TempoMap (std::move (tempoChanges));
    meters = MeterMap (std::move (meterChanges));
}
} // namespace Zn::Render
