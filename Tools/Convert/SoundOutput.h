#pragma once

#include "SoundShape.h"
#include "Support/OutputFile.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <memory>
#include <span>
#include <vector>

namespace Zn::TonqTool
{
/** Which kind of file a name ends like. Throws FileError for another one. */
SoundKind kindFromName (const juce::File& file);

/** A sound file as it is written. Everything throws FileError; then the file is not there. */
class SoundOutput
{
public:
    /** Refuses a shape that the kind cannot hold as it is. Metadata that come from another kind of file are left out,
        as it would not understand them.
    */
    SoundOutput (const juce::File& target,
                 SoundKind kindToWrite,
                 const SoundShape& shapeToWrite,
                 const juce::StringPairArray& metadata);
    ~SoundOutput();

    void write (std::span<int* const> channels, int numFrames);

    /** Completes the file. Nothing may be written afterwards. */
    void finish();

private:
    Tools::OutputFile file;
    const SoundKind kind;
    const SoundShape shape;
    std::vector<const int*> samples; // of each channel, for the writer
    std::unique_ptr<juce::AudioFormatWriter> writer;
};
} // namespace Zn::TonqTool
