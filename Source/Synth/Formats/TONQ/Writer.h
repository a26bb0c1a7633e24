#pragma once

#include "Synth/Formats/TONQ/Header.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <vector>

namespace Zn::Audio::Formats::TONQ
{
/** Writes a header that names no frames, then the samples as they come; each flush, and the end, puts the number of
    frames into the header, so that a file is whole as far as it was flushed. Thread: any but audio, one at a time.
*/
class Writer : public juce::AudioFormatWriter
{
public:
    /** Owns the stream from now on. The header is valid; its metadata are these bytes. */
    Writer (juce::OutputStream* stream, const Header& headerToUse, const juce::MemoryBlock& metadata);
    ~Writer() override;

    /** False once something could not be written: nothing is from then on. */
    bool write (const int** channels, int numFrames) override;
    bool flush() override;

private:
    bool writeHeader();
    bool writeSome (const int** channels, int start, int numFrames);

    Header header;
    const juce::int64 headerPosition; // in the stream
    std::vector<std::byte> buffer;    // some frames as they will be in the file
    bool hasFailed = false;
};
} // namespace Zn::Audio::Formats::TONQ
