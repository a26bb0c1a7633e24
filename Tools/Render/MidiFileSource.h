#pragma once

#include "EventStream.h"
#include "MeterMap.h"
#include "TempoMap.h"

#include <juce_core/juce_core.h>

#include <cstdint>
#include <span>
#include <vector>

namespace Zn::Render
{
/** A MIDI file of format 0 or 1, proved sound from the first byte to the last when it is opened.

    Keeps the file's bytes and its tempo and meter; the events are read from the bytes as they are needed.
*/
class MidiFileSource
{
public:
    /** Throws FileError, naming the file and what is wrong with it. */
    explicit MidiFileSource (const juce::File&);

    /** Throws FileError that says what is wrong, but not with which file. */
    explicit MidiFileSource (std::vector<std::uint8_t> bytes);

    /** From the first event on. Must not outlive the source. */
    EventStream getEvents() const;

    const TempoMap& getTempoMap() const noexcept { return tempi; }
    const MeterMap& getMeterMap() const noexcept { return meters; }

    /** Up to the end of the longest track. */
    double getLengthQuarters() const noexcept { return lengthQuarters; }

private:
    void read();
    std::size_t readHeader();
    void findTracks (std::size_t firstChunk);
    void readTracks();

    std::vector<std::uint8_t> bytes;
    std::vector<std::span<const std::uint8_t>> tracks;
    std::size_t expectedTracks = 0;
    int ticksPerQuarter = 0;
    TempoMap tempi;
    MeterMap meters;
    double lengthQuarters = 0.0;
};
} // namespace Zn::Render
