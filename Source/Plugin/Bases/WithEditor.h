#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::Audio::Plugin
{
/** Gives a processor its editor. Editor is constructed from a reference to the processor. */
template <typename ProcessorType, typename Editor>
class WithEditor : public ProcessorType
{
public:
    using ProcessorType::ProcessorType;

    bool hasEditor() const override { return true; }
    juce::AudioProcessorEditor* createEditor() override { return new Editor (*this); }
};
} // namespace Zn::Audio::Plugin
