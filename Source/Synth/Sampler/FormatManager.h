#pragma once

#include "Foundation/Singleton.h"

#include <juce_audio_formats/juce_audio_formats.h>

#include <memory>

namespace Zn::Audio::Sampler
{
/** The file formats that sound is read from, told apart by content and not by a file's name. One for the process;
    a further format joins in the constructor. Thread: any but audio.
*/
class FormatManager
{
public:
    FormatManager();

    /** Null when no format takes the content. */
    std::unique_ptr<juce::AudioFormatReader> createReader (std::unique_ptr<juce::InputStream> stream);

private:
    juce::AudioFormatManager formats;
};
} // namespace Zn::Audio::Sampler
