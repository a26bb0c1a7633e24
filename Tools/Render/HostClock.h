#pragma once

#include "SongTimeline.h"

#include <juce_audio_basics/juce_audio_basics.h>

namespace Zn::Render
{
/** Tells the processor the musical position of the block that is about to be rendered, as a host does. */
class HostClock final : public juce::AudioPlayHead
{
public:
    enum class Mode
    {
        playing,
        stopped // at the start of the song, with its tempo
    };

    HostClock (const SongTimeline& timelineToUse, Mode modeToUse) : timeline (timelineToUse), mode (modeToUse)
    {}

    /** To be called before each block with its first sample. */
    void moveTo (std::int64_t newSample) noexcept { sample = newSample; }

    juce::Optional<PositionInfo> getPosition() const override;

private:
    const SongTimeline& timeline;
    Mode mode;
    std::int64_t sample = 0;
};
} // namespace Zn::Render
