#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <memory>

namespace Zn::Audio::Plugin
{
/** Gives a processor its editor. Editor is constructed from a reference to the processor. */
template <typename ProcessorType, typename Editor>
class WithEditor : public ProcessorType
{
public:
    using ProcessorType::ProcessorType;

    bool hasEditor() const override { return true; }

    /** Null when there is no editor to be had. Thread: message. */
    juce::AudioProcessorEditor* createEditor() override
    {
        this->finishPendingLoad();

        try
        {
            return std::make_unique<Editor> (*this).release();
        }
        catch (...) // the host knows nothing of ours
        {
            return nullptr;
        }
    }
};
} // namespace Zn::Audio::Plugin
