#pragma once

#include "OutputWriter.h"
#include "SongMarks.h"
#include "Support/OutputFile.h"

namespace Zn::Render
{
/** Writes the events as a MIDI file of one track with the tempo and meter of the
    timeline, unrolled if it loops.
*/
class MidiFileWriter final : public OutputWriter
{
public:
    /** Fine enough that at usual tempi a sample hardly spans more than a tick. */
    static constexpr int ticksPerQuarter = 15360;

    /** The timeline must outlive the writer. */
    MidiFileWriter (const juce::File& target, const SongTimeline&);

    void write (const RenderedBlock&) override;
    void finish() override;

private:
    void writeMarksUpTo (double elapsedQuarters);
    void writeEvent (const juce::uint8* data, int size, juce::int64 sample);

    /** Writes the time since the last event, which may be more than one number of a MIDI file can say. */
    void writeTime (double elapsedQuarters);
    void writeQuantity (juce::uint32);
    void patchLength();

    Tools::OutputFile file;
    const SongTimeline& timeline;
    SongMarks marks;
    juce::int64 lastTick = 0;
    juce::int64 endSample = 0;
};
} // namespace Zn::Render
