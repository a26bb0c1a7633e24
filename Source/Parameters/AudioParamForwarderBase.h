#pragma once

#include "Parameters/ForwarderBase.h"

#include <atomic>

namespace Zn::Parameters
{
/** Gives a widget a parameter of the processor, with gestures that reach the host once.

    A gesture goes to `hostSide`, the parameter that the host knows the target by, or to the target itself when
    the host knows it; a target that the host does not know has gestures in name only. A gesture ends with the
    forwarder at the latest. Created and destroyed with the editor; must not outlive the processor.
*/
class AudioParamForwarderBase : public ForwarderBase<juce::AudioProcessorParameter>,
                                private juce::AudioProcessorParameter::Listener
{
public:
    explicit AudioParamForwarderBase (juce::AudioProcessorParameter& targetToUse,
                                      juce::AudioProcessorParameter* hostSideToUse = nullptr);
    ~AudioParamForwarderBase() override;

    AudioParamForwarderBase (const AudioParamForwarderBase&) = delete;
    AudioParamForwarderBase& operator= (const AudioParamForwarderBase&) = delete;

    MenuItems::Item getMenuChoices() override;

    bool isGestureActive() const override { return gesture.load(); }
    void beginGesture() override;
    void endGesture() override;

    /** The parameter that the host knows the target by, if it is not the target itself. */
    juce::AudioProcessorParameter* getHostSide() const noexcept { return hostSide; }

    /** True once after the target was changed by anyone. */
    bool takeChange() noexcept { return changed.exchange (false); }

private:
    void parameterValueChanged (int index, float normalised) override;
    void parameterGestureChanged (int index, bool isStarting) override;

    juce::AudioProcessorParameter* const hostSide;
    std::atomic<bool> gesture { false };
    std::atomic<bool> changed { false }; // written: any thread that sets the target
};
} // namespace Zn::Parameters
