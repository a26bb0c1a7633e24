#include "GUI/Sound/EnvelopeShape.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr float sustainWidth = 1.0f / 6.0f;
constexpr float widestPerRoot = 1.0f - sustainWidth;

/** The time between what lies to its left and to its right, all as roots, that ends at a place. */
float secondsFor (float x, float before, float after) noexcept
{
    constexpr auto widest = 0.99f;
    const auto share = std::clamp (x / widestPerRoot, 0.0f, widest);
    const auto isFiner = share + after > 1.0f;
    const auto root = std::max (0.0f, (isFiner ? share * after / (1.0f - share) : share) - before);
    return root * root;
}
} // namespace

EnvelopeShape EnvelopeShape::of (const EnvelopeTimes& times)
{
    const auto attack = std::sqrt (times.attack);
    const auto decay = std::sqrt (times.decay);
    const auto release = std::sqrt (times.release);
    const auto perRoot = widestPerRoot / std::max (1.0f, attack + decay + release);

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

float EnvelopeShape::attackFor (const EnvelopeTimes& times, float x) noexcept
{
    return secondsFor (x, 0.0f, std::sqrt (times.decay) + std::sqrt (times.release));
}

float EnvelopeShape::decayFor (const EnvelopeTimes& times, float x) noexcept
{
    return secondsFor (x, std::sqrt (times.attack), std::sqrt (times.release));
}
} // namespace Zn::GUI
