#pragma once

#include "BlockSizes.h"
#include "HostClock.h"
#include "MidiFileSource.h"
#include "OutputWriter.h"
#include "SongTimeline.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <functional>
#include <optional>
#include <span>

namespace Zn::Render
{
/** Plays a file through a processor as a host does when it bounces: prepare, block after block, release.

    Holds one block at a time, however long the render is.
*/
class Renderer
{
public:
    struct Setup
    {
        BlockSizes blockSizes = BlockSizes::fixed (512);
        std::optional<HostClock::Mode> clock = HostClock::Mode::playing; // none: no play head
        juce::int64 tailSamples = 0;                                     // behind the end of the song
    };

    /** Is told how many samples are done, of how many. */
    using Progress = std::function<void (juce::int64 done, juce::int64 total)>;

    /** All must outlive the renderer. */
    Renderer (juce::AudioProcessor&, const MidiFileSource&, const SongTimeline&, Setup);

    /** Renders the song and its tail. Throws what a writer throws; the processor is released in any case. */
    void run (std::span<OutputWriter* const>, const Progress&);

    /** Length of song and tail, at least what it takes to hear the last release. */
    juce::int64 getTotalSamples() const noexcept;

private:
    juce::AudioProcessor& processor;
    const MidiFileSource& source;
    const SongTimeline& timeline;
    Setup setup;
};
} // namespace Zn::Render
