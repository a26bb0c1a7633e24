#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Audio
{
struct TransportSlice;

/** A play head that answers for the first sample of a transport slice, with tempo, samples and quarter notes
    always present. Its samples run one block ahead, as the clock has already moved over the block. Lives
    inside its slice. Thread: audio.
*/
class PlayHeadTransportView : public juce::AudioPlayHead
{
public:
    explicit PlayHeadTransportView (const TransportSlice& sliceToAnswerFor) noexcept
        : slice (sliceToAnswerFor)
    {}

    juce::Optional<PositionInfo> getPosition() const override;

private:
    const TransportSlice& slice;
};
} // namespace Zn::Audio
