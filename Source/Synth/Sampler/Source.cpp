#include "Synth/Sampler/Source.h"

namespace Zn::Audio::Sampler
{
std::unique_ptr<juce::InputStream> MemorySource::createStream() const
{
    return std::make_unique<juce::MemoryInputStream> (content.data(), content.size(), false);
}

std::unique_ptr<juce::InputStream> FileSource::createStream() const
{
    // Also keeps away from devices and pipes, which have no size and might never answer.
    if (file.getSize() <= 0)
        return nullptr;

    auto stream = file.createInputStream();

    if (stream == nullptr)
        return nullptr;

    return std::make_unique<juce::BufferedInputStream> (stream.release(), 16384, true);
}
} // namespace Zn::Audio::Sampler
