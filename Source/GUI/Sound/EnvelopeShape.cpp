#include "GUI/Sound/EnvelopeShape.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
EnvelopeShape EnvelopeShape::of (const EnvelopeTimes& times, float widestPerRoot)
{
    const auto attack = std::sqrt (times.attack);
    const auto decay = std::sqrt (times.decay);
    const auto release = std::sqrt (times.release);
    const auto perRoot = std::min (widestPerRoot, defaultWidthPerRoot / (attack + decay + release));

    const auto peakX = attack * perRoot;
    const auto sustainX = peakX + decay * perRoot;
    const auto releaseX = sustainX + sustainWidth;

    return { { { { 0.0f, 0.0f },
                 { peakX, 1.0f },
                 { sustainX, times.sustain },
                 { releaseX, times.sustain },
                 { releaseX + release * perRoot, 0.0f } } },
             perRoot };
}

float EnvelopeShape::secondsBetween (float startX, float endX) const noexcept
{
    const auto root = std::max (0.0f, endX - startX) / widthPerRoot;
    return root * root;
}
} // namespace Zn::GUI
