#include "SoundInput.h"

#include "Foundation/NativePath.h"
#include "Support/Errors.h"
#include "Synth/Formats/TONQ/Format.h"
#include "Synth/Formats/TONQ/Header.h"
#include "Synth/Formats/TONQ/Reader.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace Zn::TonqTool
{
namespace
{
using Audio::Formats::TONQ::Format;
using Audio::Formats::TONQ::Header;

bool isPacked (const juce::AudioFormatReader& reader)
{
    return reader.getFormatName().startsWith ("FLAC");
}
} // namespace

/** Remembers that something was wanted which the file has no more of; readers would give silence for it. */
class SoundInput::Stream final : public juce::InputStream
{
public:
    explicit Stream (const juce::File& file) : in (file) {}

    bool canBeRead() const { return in.openedOk(); }

    /** What unpacks takes as much as there is, and before it asks for more, whether there is more. */
    void startWatching (bool isPacked)
    {
        watchesReads = ! isPacked;
        watchesEnd = isPacked;
    }

    bool hasRunDry() const { return ranDry; }

    int read (void* data, int size) override
    {
        const auto numRead = in.read (data, size);
        ranDry = ranDry || (watchesReads && numRead < size);
        return numRead;
    }

    bool isExhausted() override
    {
        const auto isAtEnd = in.isExhausted();
        ranDry = ranDry || (watchesEnd && isAtEnd);
        return isAtEnd;
    }

    juce::int64 getTotalLength() override { return in.getTotalLength(); }
    juce::int64 getPosition() override { return in.getPosition(); }
    bool setPosition (juce::int64 position) override { return in.setPosition (position); }

private:
    juce::FileInputStream in;
    bool watchesReads = false, watchesEnd = false, ranDry = false;
};

SoundInput::SoundInput (const juce::File& fileToRead) : file (fileToRead)
{
    checkFile();
    open();
    checkShape();
    checkLength();
    stream->startWatching (isPacked (*reader));
}

SoundInput::~SoundInput() = default;

bool SoundInput::isTonq() const
{
    return reader->getFormatName() == Audio::Formats::TONQ::nameOfFormat;
}

SoundShape SoundInput::getShape() const
{
    return { reader->sampleRate,
             static_cast<int> (reader->numChannels),
             static_cast<int> (reader->bitsPerSample),
             reader->usesFloatingPointData };
}

void SoundInput::read (std::span<int* const> channels, juce::int64 start, int numFrames)
{
    const auto isRead =
        reader->readSamples (channels.data(), static_cast<int> (channels.size()), 0, start, numFrames);

    // What unpacks leaves out what is damaged.
    if (! isRead || stream->hasRunDry())
        fail (isPacked (*reader) ? "breaks off before its last sample, or is damaged"
                                 : "breaks off before its last sample");
}

void SoundInput::fail (const std::string& whatIsWrong) const
{
    throw Tools::FileError (file.getFullPathName().toStdString() + ": " + whatIsWrong);
}

/** A pipe or a device might never answer. */
void SoundInput::checkFile() const
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    const auto status = fs::status (nativePath (file), ignored);

    if (! fs::exists (status))
        fail ("does not exist");

    if (! fs::is_regular_file (status))
        fail ("is no file");
}

void SoundInput::open()
{
    auto opened = std::make_unique<Stream> (file);
    stream = opened.get();

    if (! opened->canBeRead())
        fail ("cannot be read");

    juce::AudioFormatManager formats;
    formats.registerFormat (new Format, true);
    formats.registerFormat (new juce::WavAudioFormat, false);
    formats.registerFormat (new juce::AiffAudioFormat, false);
    formats.registerFormat (new juce::FlacAudioFormat, false);
    reader.reset (formats.createReaderFor (std::unique_ptr<juce::InputStream> (std::move (opened))));

    if (reader == nullptr)
        fail ("is no sound file that can be read: neither .tnq nor WAV, AIFF or FLAC, or damaged, or "
              "compressed");
}

void SoundInput::checkShape() const
{
    const auto shape = getShape();
    constexpr std::array depths { 8, 16, 24, 32 };

    if (shape.numChannels > Header::maxChannels)
        fail ("has " + std::to_string (shape.numChannels) + " channels; a .tnq file holds up to "
              + std::to_string (Header::maxChannels));

    if (shape.sampleRate < 1.0 || shape.sampleRate > Header::maxSampleRate)
        fail ("has a sample rate that makes no sense");

    if ((shape.isFloat && shape.bits != 32)
        || (! isPacked (*reader) && std::ranges::find (depths, shape.bits) == depths.end()))
        fail ("has samples of " + std::to_string (shape.bits) + " bits, which cannot be read");
}

void SoundInput::checkLength() const
{
    if (reader->lengthInSamples < 0)
        fail ("has a length that makes no sense");

    const auto* tonq = dynamic_cast<const Audio::Formats::TONQ::Reader*> (reader.get());

    if (tonq != nullptr && ! tonq->isWhole())
        fail ("breaks off before its last sample");
}
} // namespace Zn::TonqTool
