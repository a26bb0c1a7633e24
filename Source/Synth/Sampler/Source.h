#pragma once

#include <juce_audio_formats/juce_audio_formats.h>

#include <cstddef>
#include <memory>
#include <span>

namespace Zn::Audio::Sampler
{
/** Where sound comes from before it is read: embedded data or a file. Thread: any but audio. */
class Source
{
public:
    class Reader;

    Source() = default;
    virtual ~Source() = default;

    Source (const Source&) = delete;
    Source& operator= (const Source&) = delete;

    /** The bytes from their beginning; null when they cannot be had. */
    virtual std::unique_ptr<juce::InputStream> createStream() const = 0;
};

/** Sound that is part of the program, which must outlive what is read from it. */
class MemorySource : public Source
{
public:
    explicit MemorySource (std::span<const std::byte> contentToUse) : content (contentToUse) {}

    std::unique_ptr<juce::InputStream> createStream() const override;

private:
    const std::span<const std::byte> content;
};

class FileSource : public Source
{
public:
    explicit FileSource (const juce::File& fileToUse) : file (fileToUse) {}

    std::unique_ptr<juce::InputStream> createStream() const override;

private:
    const juce::File file;
};
} // namespace Zn::Audio::Sampler
