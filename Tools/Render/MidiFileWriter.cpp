#include "MidiFileWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zn::Render
{
namespace
{
constexpr juce::int64 trackLengthPosition = 18; // behind the header chunk of 14 bytes and the track's name
constexpr juce::int64 trackStart = trackLengthPosition + 4;
constexpr juce::int64 longestQuantity = 0x0fffffff; // four bytes of seven bits
constexpr juce::uint8 sysex = 0xf0;
} // namespace

MidiFileWriter::MidiFileWriter (const juce::File& target, const SongTimeline& timelineToUse)
    : file (target), timeline (timelineToUse), marks (timelineToUse)
{
    file.write ("MThd", 4);
    file.writeIntBigEndian (6);
    file.writeShortBigEndian (0); // format
    file.writeShortBigEndian (1); // tracks
    file.writeShortBigEndian (ticksPerQuarter);
    file.write ("MTrk", 4);
    file.writeIntBigEndian (0); // the length, known at the end
}

void MidiFileWriter::write (const RenderedBlock& block)
{
    for (const auto event : block.midi)
        if (event.data[0] <= sysex) // files hold no clock and the like
            writeEvent (event.data, event.numBytes, block.firstSample + event.samplePosition);

    endSample = block.endSample();
    file.throwIfFailed();
}

void MidiFileWriter::finish()
{
    constexpr juce::uint8 endOfTrack[] { 0xff, 0x2f, 0 };
    const auto elapsed = timeline.pointAt (endSample).elapsedQuarters;

    writeMarksUpTo (elapsed);
    writeTime (elapsed);
    file.write (endOfTrack, sizeof (endOfTrack));
    patchLength();
    file.finish();
}

void MidiFileWriter::writeMarksUpTo (double elapsedQuarters)
{
    for (; marks.peek() != nullptr && marks.peek()->elapsedQuarters <= elapsedQuarters; marks.pop())
    {
        writeTime (marks.peek()->elapsedQuarters);
        file.write (marks.peek()->bytes.data(), marks.peek()->bytes.size());
    }
}

void MidiFileWriter::writeEvent (const juce::uint8* data, int size, juce::int64 sample)
{
    const auto elapsed = timeline.pointAt (sample).elapsedQuarters;
    writeMarksUpTo (elapsed);
    writeTime (elapsed);

    if (data[0] == sysex)
    {
        file.writeByte (static_cast<char> (*data++));
        writeQuantity (static_cast<juce::uint32> (--size));
    }

    file.write (data, static_cast<std::size_t> (size));
}

void MidiFileWriter::writeTime (double elapsedQuarters)
{
    const auto tick = std::max (lastTick, std::llround (elapsedQuarters * ticksPerQuarter));
    auto ticks = tick - lastTick;
    lastTick = tick;

    for (; ticks > longestQuantity; ticks -= longestQuantity)
    {
        constexpr juce::uint8 emptyText[] { 0xff, 0x01, 0 };
        writeQuantity (static_cast<juce::uint32> (longestQuantity));
        file.write (emptyText, sizeof (emptyText));
    }

    writeQuantity (static_cast<juce::uint32> (ticks));
}

void MidiFileWriter::writeQuantity (juce::uint32 value)
{
    constexpr int bits = 7, highestShift = 21;

    for (auto shift = highestShift; shift > 0; shift -= bits)
        if (value >> shift != 0)
            file.writeByte (static_cast<char> (0x80 | ((value >> shift) & 0x7f)));

    file.writeByte (static_cast<char> (value & 0x7f));
}

void MidiFileWriter::patchLength()
{
    const auto length = file.getPosition() - trackStart;

    if (length > std::numeric_limits<juce::uint32>::max())
        file.fail ("cannot be written: a MIDI file cannot hold so many events");

    file.setPosition (trackLengthPosition);
    file.writeIntBigEndian (static_cast<int> (length));
}
} // namespace Zn::Render
