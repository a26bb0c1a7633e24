#include "HostClock.h"

#include <cmath>

namespace Zn::Render
{
juce::Optional<juce::AudioPlayHead::PositionInfo> HostClock::getPosition() const
{
    const auto playing = mode == Mode::playing;
    const auto point = timeline.pointAt (playing ? sample : 0);
    const auto& meter = timeline.getMeterMap().meterAt (point.quarters);

    PositionInfo info;
    info.setIsPlaying (playing);
    info.setPpqPosition (point.quarters);
    info.setPpqPositionOfLastBarStart (timeline.getMeterMap().barStartAt (point.quarters));
    info.setBpm (timeline.getTempoMap().bpmAt (point.quarters));
    info.setTimeSignature (TimeSignature { meter.numerator, meter.denominator });
    info.setTimeInSeconds (point.seconds);
    info.setTimeInSamples (std::llround (point.seconds * timeline.getSampleRate()));

    if (const auto& loop = timeline.getLoop())
    {
        info.setIsLooping (true);
        info.setLoopPoints (LoopPoints { loop->startQuarters, loop->endQuarters });
    }

    return info;
}
} // namespace Zn::Render
