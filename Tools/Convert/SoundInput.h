#pragma once

#include "SoundShape.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <memory>
#include <span>
#include <string>

namespace Zn::TonqTool
{
/** A sound file that is read from its beginning to its end. Everything throws FileError. */
class SoundInput
{
public:
    /** Tells formats apart by content. Refuses what a ".tnq" file could not hold. */
    explicit SoundInput (const juce::File& fileToRead);
    ~SoundInput();

    bool isTonq() const;
    SoundShape getShape() const;
    juce::int64 getNumFrames() const { return reader->lengthInSamples; }
    const juce::StringPairArray& getMetadata() const { return reader->metadataValues; }

    /** Whole numbers in the highest bits, or the bits of floating point. Throws if they are not all there. */
    void read (std::span<int* const> channels, juce::int64 start, int numFrames);

    /** Throws an error that names this file. */
    [[noreturn]] void fail (const std::string& whatIsWrong) const;

private:
    class Stream;

    void checkFile() const;
    void open();
    void checkShape() const;
    void checkLength() const;

    const juce::File file;
    std::unique_ptr<juce::AudioFormatReader> reader;
    Stream* stream = nullptr; // the reader's
};
} // namespace Zn::TonqTool
