#pragma once

#include "Synth/Filters/FilteredDelay.h"
#include "Synth/Kernels/StateVariableFilter.h"

namespace Zn::Audio::AnalogDelay
{
struct Params;

/** The tone of the echo: a low-pass of one stage that darkens with each pass. Thread: audio. */
class DelayFilter
{
public:
    DelayFilter() { prepare (44100.0); }

    void prepare (double newSampleRate) noexcept;

    /** 0 bright to 1 dark. Works only when it differs from before. */
    void setAnalog (float newAnalog) noexcept;

    const Kernels::FilterCoefficients& getCoefficients() const noexcept { return coefficients; }
    static constexpr Kernels::FilterType getType() noexcept { return Kernels::FilterType::lowPass; }

private:
    void update() noexcept;

    double sampleRate = 44100.0; // hertz
    float analog = 0.5f;
    Kernels::FilterCoefficients coefficients;
};

/** The cutoff of the tone in hertz: 20000 at 0, 1000 at 0.5, 100 at 1. */
float toneCutoffHz (float analog) noexcept;

using Delay = Filters::FilteredDelay<DelayFilter>;

/** Sets the delay to what its parameters say, at a tempo in quarters a minute. Thread: audio. */
void follow (Delay& delay, const Params& params, double tempo) noexcept;
} // namespace Zn::Audio::AnalogDelay
