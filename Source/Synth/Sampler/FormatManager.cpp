#include "Synth/Sampler/FormatManager.h"

#include "Synth/Formats/TONQ/Format.h"

namespace Zn::Audio::Sampler
{
FormatManager::FormatManager()
{
    formats.registerFormat (new juce::WavAudioFormat, true);
    formats.registerFormat (new Formats::TONQ::Format, false);
}

std::unique_ptr<juce::AudioFormatReader>
FormatManager::createReader (std::unique_ptr<juce::InputStream> stream)
{
    return std::unique_ptr<juce::AudioFormatReader> (formats.createReaderFor (std::move (stream)));
}
} // namespace Zn::Audio::Sampler
