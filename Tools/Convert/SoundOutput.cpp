#include "SoundOutput.h"

#include "Support/Errors.h"
#include "Synth/Formats/TONQ/Format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace Zn::TonqTool
{
namespace
{
using Audio::Formats::TONQ::Format;
using Tools::OutputFile;

/** What a kind of file can hold. */
struct Limits
{
    const char* name;
    int maxChannels;
    bool holds32Bits, holdsAnyRate;
};

const Limits& limitsOf (SoundKind kind)
{
    static constexpr std::array<Limits, 4> limits { { { ".tnq", 32, true, true },
                                                      { "WAV", 32, true, false },
                                                      { "AIFF", 32, false, false },
                                                      { "FLAC", 8, false, false } } };
    return limits[static_cast<std::size_t> (kind)];
}

void checkShape (const SoundShape& shape, SoundKind kind, const OutputFile& file)
{
    const auto& limits = limitsOf (kind);
    const std::string refusal = std::string ("cannot be written: ") + limits.name;

    if (shape.numChannels > limits.maxChannels)
        file.fail (refusal + " holds up to " + std::to_string (limits.maxChannels) + " channels, not "
                   + std::to_string (shape.numChannels));

    if (shape.bits == 32 && ! limits.holds32Bits)
        file.fail (refusal + " holds 16 or 24 bits, not 32 bits of "
                   + (shape.isFloat ? "floating point" : "whole numbers") + "; WAV does");

    if (! limits.holdsAnyRate && shape.sampleRate != std::floor (shape.sampleRate))
        file.fail (refusal + " holds whole sample rates only");
}

/** Which channel is which speaker, if the sound came from a file that told. */
juce::AudioChannelSet speakersOf (int numChannels, const juce::StringPairArray& metadata)
{
    const auto told = juce::AudioChannelSet::fromWaveChannelMask (metadata["ChannelMask"].getIntValue());

    if (told.size() == numChannels)
        return told;

    return juce::AudioChannelSet::discreteChannels (numChannels);
}

/** Whether there can be as many marks and loops as it says: what writes the files believes it, and makes room for them
    and writes them all. Each takes an entry at least.
*/
bool hasWhatItCounts (const juce::StringPairArray& metadata)
{
    const auto counts = { "NumCuePoints", "NumCueLabels", "NumCueNotes", "NumCueRegions", "NumSampleLoops" };

    return std::ranges::all_of (counts, [&] (const char* count) {
        const auto told = metadata[count].getLargeIntValue();
        return told >= 0 && told <= metadata.size();
    });
}

juce::StringPairArray understoodBy (const char* kind, const juce::StringPairArray& metadata)
{
    if (metadata.getValue ("MetaDataSource", kind) != kind || ! hasWhatItCounts (metadata))
        return {};

    return metadata;
}

juce::AudioFormatWriter* createWriter (juce::OutputStream* stream,
                                       SoundKind kind,
                                       const SoundShape& shape,
                                       const juce::StringPairArray& metadata)
{
    constexpr auto floatingPoint = 0, wholeNumbers = 1; // of our own files
    constexpr auto usualEffort = 5;                     // of FLAC

    const auto numChannels = static_cast<unsigned int> (shape.numChannels);
    const auto rate = shape.sampleRate;

    switch (kind)
    {
    case SoundKind::tonq:
        return Format().createWriterFor (stream,
                                         rate,
                                         numChannels,
                                         shape.bits,
                                         metadata,
                                         shape.isFloat ? floatingPoint : wholeNumbers);
    case SoundKind::wav:
        return juce::WavAudioFormat().createWriterFor (stream,
                                                       rate,
                                                       speakersOf (shape.numChannels, metadata),
                                                       shape.bits,
                                                       understoodBy ("WAV", metadata),
                                                       0);
    case SoundKind::aiff:
        return juce::AiffAudioFormat()
            .createWriterFor (stream, rate, numChannels, shape.bits, understoodBy ("AIFF", metadata), 0);
    case SoundKind::flac:
        return juce::FlacAudioFormat()
            .createWriterFor (stream, rate, numChannels, shape.bits, {}, usualEffort);
    }

    return nullptr;
}

/** Says in the header of a WAV file that its 32 bits are whole numbers: what writes the file knows them as floating
    point only, and copies either kind as it is.
*/
void declareWholeNumbers (OutputFile& file)
{
    constexpr std::size_t headSize = 8, toSubFormat = 24; // bytes
    constexpr auto wholeNumbers = '\1', floatingPoint = '\3', extensible = '\xFE';

    std::array<char, 128> header {};
    file.read (0, header.data(), header.size());

    const std::string_view text (header.data(), header.size() - headSize - toSubFormat);
    const auto chunk = text.find ("fmt ");

    if (chunk == std::string_view::npos)
        file.fail ("cannot be written: 32 bits of whole numbers are not supported");

    auto place = chunk + headSize;

    if (header[place] == extensible)
        place += toSubFormat;

    if (header[place] != floatingPoint)
        file.fail ("cannot be written: 32 bits of whole numbers are not supported");

    file.setPosition (static_cast<juce::int64> (place));
    file.writeByte (wholeNumbers);
}
} // namespace

SoundKind kindFromName (const juce::File& file)
{
    using Row = std::pair<const char*, SoundKind>;

    for (const auto& [extensions, kind] : { Row { ".tnq", SoundKind::tonq },
                                            Row { ".wav", SoundKind::wav },
                                            Row { ".aif;.aiff", SoundKind::aiff },
                                            Row { ".flac", SoundKind::flac } })
        if (file.hasFileExtension (extensions))
            return kind;

    throw Tools::FileError (file.getFullPathName().toStdString()
                            + ": its name ends in none of .tnq, .wav, .aif, .aiff and .flac");
}

SoundOutput::SoundOutput (const juce::File& target,
                          SoundKind kindToWrite,
                          const SoundShape& shapeToWrite,
                          const juce::StringPairArray& metadata)
    : file (target)
    , kind (kindToWrite)
    , shape (shapeToWrite)
    , samples (static_cast<std::size_t> (shape.numChannels))
{
    checkShape (shape, kind, file);

    auto stream = file.createStream();
    writer.reset (createWriter (stream.get(), kind, shape, metadata));

    if (writer == nullptr)
        file.fail (std::string ("cannot be written: ") + limitsOf (kind).name
                   + " does not know its sample rate");

    stream.release(); // now the writer's
}

SoundOutput::~SoundOutput() = default;

void SoundOutput::write (std::span<int* const> channels, int numFrames)
{
    std::copy (channels.begin(), channels.end(), samples.begin());

    const auto isWritten = writer->write (samples.data(), numFrames);
    file.throwIfFailed();

    if (! isWritten)
        file.fail (std::string ("cannot be written: it is too long for ") + limitsOf (kind).name);
}

void SoundOutput::finish()
{
    writer.reset(); // completes the header

    if (kind == SoundKind::wav && shape.bits == 32 && ! shape.isFloat)
        declareWholeNumbers (file);

    file.finish();
}
} // namespace Zn::TonqTool
