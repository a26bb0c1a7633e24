#pragma once

#include <algorithm>

namespace Zn::GUI
{
/** How a meter moves: up at once, down at a steady rate; the highest level stays for a while. In decibels and seconds. */
struct MeterBallistics
{
    struct Settings
    {
        float lowest = -60.0f, fallPerSecond = 24.0f, peakHoldSeconds = 1.2f;
    };

    void advance (float decibels, float seconds, const Settings& settings) noexcept
    {
        const auto heard = std::max (decibels, settings.lowest);
        level = std::max (heard, level - settings.fallPerSecond * seconds);
        held += seconds;

        if (heard >= peak)
        {
            peak = heard;
            held = 0.0f;
        }
        else if (held > settings.peakHoldSeconds)
        {
            peak = std::max (level, peak - settings.fallPerSecond * seconds);
        }

        clipped = clipped || decibels > 0.0f;
    }

    float level = -60.0f, peak = -60.0f;
    float held = 0.0f;    // how long the peak has been there
    bool clipped = false; // since somebody has cleared it
};
} // namespace Zn::GUI
