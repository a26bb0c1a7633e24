#pragma once

#include "Synth/Formats/TONQ/Header.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <memory>
#include <vector>

namespace Zn::Audio::Formats::TONQ
{
constexpr auto nameOfFormat = "TONQ file";
constexpr int framesAtATime = 4096; // that are read or written in one go

/** Thread: any but audio, one at a time. */
class Reader : public juce::AudioFormatReader
{
public:
    /** Takes the stream over if the file is sound; else returns null and leaves it. */
    static std::unique_ptr<Reader> open (std::unique_ptr<juce::InputStream>& stream);

    /** Whether the file goes on to the last frame that its header speaks of; else it ends where it breaks off. */
    bool isWhole() const noexcept;

    /** Of 32 bits that are floating point, the bits; else whole numbers, left-aligned in 32 bits. */
    bool readSamples (int* const* channels,
                      int numWantedChannels,
                      int startInChannels,
                      juce::int64 startFrame,
                      int numWantedFrames) override;

private:
    Reader (std::unique_ptr<juce::InputStream> stream, const Header& headerToUse);

    void readMetadata();
    void convert (int* const* channels, int numWantedChannels, int start, int numFrames) const;

    const Header header;
    std::vector<std::byte> buffer; // framesAtATime frames as they are in the file
};
} // namespace Zn::Audio::Formats::TONQ
