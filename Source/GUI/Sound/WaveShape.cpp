#include "GUI/Sound/WaveShape.h"

#include "Synth/Kernels/Pitch.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
WaveLine waveShape (const Audio::Kernels::TableView& table, int numColumns)
{
    std::vector<juce::Point<float>> points;

    if (table.frames == nullptr || table.numFrames < 2 || numColumns < 1)
        return points;

    const auto last = table.numFrames - 1;
    const auto levelOf = [&table] (int frame) { return table.frames[frame * table.numChannels]; };
    const auto add = [&] (int frame) { points.emplace_back (float (frame) / float (last), levelOf (frame)); };
    points.reserve (static_cast<std::size_t> (numColumns) * 2 + 2);
    add (0);

    for (int column = 0, frame = 1; column < numColumns && frame < last; ++column)
    {
        const auto end = juce::roundToInt (double (last) * (column + 1) / numColumns);
        auto lowest = frame, highest = frame;

        for (; frame < std::min (end, last); ++frame)
        {
            if (levelOf (frame) < levelOf (lowest))
                lowest = frame;

            if (levelOf (frame) > levelOf (highest))
                highest = frame;
        }

        add (std::min (lowest, highest));

        if (lowest != highest)
            add (std::max (lowest, highest));
    }

    add (last);
    return points;
}

float unisonLead (int numVoices, float spread)
{
    constexpr auto cyclesUntilShown = 9.0; // the widest pair is then about a tenth of a cycle apart

    const auto pair = Audio::Kernels::unisonPitches ({ .numVoices = numVoices, .spread = spread });
    const auto gain = (pair[1].frequencyHz / pair[0].frequencyHz - 1.0) * cyclesUntilShown;
    return static_cast<float> (gain - std::floor (gain));
}

WaveLine movedAhead (const WaveLine& shape, float lead)
{
    auto moved = shape;

    for (auto& point : moved)
        point.x -= point.x < lead ? lead - 1.0f : lead;

    // The first and the last point of the cycle are the same sample.
    std::ranges::stable_sort (moved, {}, &juce::Point<float>::x);

    if (! moved.empty())
    {
        moved.insert (moved.begin(), { 0.0f, moved.back().y });
        moved.emplace_back (1.0f, moved[1].y);
    }

    return moved;
}

void fitWave (WaveLine& shape, juce::Rectangle<float> area)
{
    auto peak = 1e-6f;

    for (const auto& point : shape)
        peak = std::max (peak, std::abs (point.y));

    const auto scale = area.getHeight() / 2.0f / peak;

    for (auto& point : shape)
        point = { area.getX() + point.x * area.getWidth(), area.getCentreY() - point.y * scale };
}
} // namespace Zn::GUI
