#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/** Walks through the bytes of MIDI files, which may be anything. Thread: any. */
namespace Zn::Sequencer::MidiPlayer
{
using FileBytes = std::span<const std::uint8_t>;

/** Where the tracks of a MIDI file lie in it. */
struct FileTracks
{
    int ticksPerQuarter = 0; // above 0
    std::vector<FileBytes> tracks;

    /** Nothing for what is no MIDI file, is cut off, or counts in SMPTE frames. What lies behind the last track does
        not matter. The result refers to the bytes.
    */
    static std::optional<FileTracks> find (FileBytes file);
};

/** Goes from event to event of one track. */
class TrackReader
{
public:
    struct Event
    {
        double tick = 0.0;
        int status = 0;    // first byte: with a channel, or 0xFF for a meta event
        int type = 0;      // of a meta event
        FileBytes data {}; // what follows: two bytes, or one, or any number of a meta event
    };

    explicit TrackReader (FileBytes track) : rest (track) {}

    /** The next event. Nothing at the track's end, and where its bytes make no sense. */
    std::optional<Event> next();

    /** Where the track ended, if it has. */
    double getTick() const noexcept { return tick; }

    /** Whether it ended because its bytes made no sense. */
    bool isDamaged() const noexcept { return damaged; }

private:
    std::optional<Event> readEvent();
    std::optional<std::uint8_t> readByte();
    std::optional<std::uint32_t> readVariableLength();
    std::optional<FileBytes> read (std::size_t size);

    FileBytes rest;
    double tick = 0.0;
    int runningStatus = 0; // 0: none
    bool damaged = false;
};
} // namespace Zn::Sequencer::MidiPlayer
