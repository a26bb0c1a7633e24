#include "Markdown.h"
#include "Sections.h"
#include "Spectrum.h"

#include "Synth/Kernels/VoiceKernels.h"
#include "Synth/WavetableSynth/SampleList.h"
#include "Synth/WavetableSynth/TableSources.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace Zn::Measure
{
namespace
{
using Audio::Kernels::Stereo;
using Audio::Kernels::TableView;

constexpr size_t numSamples = 65536;

/** C1, C3, C5 and C7, as whole cycles of the window. The numbers are odd: then no harmonic that folds back lands on
    one that belongs there.
*/
constexpr std::array<int, 4> cycles { 45, 179, 715, 2857 };

struct Purity
{
    double signal = 0.0, aliasing = 0.0; // energies
    double offset = 0.0;                 // gain, of the louder side

    double ratio() const noexcept { return aliasing / signal; }
};

std::vector<Stereo> play (const TableView& table, int cyclesOfWindow)
{
    std::vector<Stereo> frames (numSamples);
    Audio::Kernels::TableRead read { table,
                                     0.0,
                                     double (cyclesOfWindow) / double (numSamples),
                                     { 1.0f, 1.0f } };
    kernelsFor (Audio::Kernels::InstructionSet::scalar).addTable (read, frames);
    return frames;
}

void addSide (Purity& purity, std::span<const float> samples, int cyclesOfWindow)
{
    const auto spectrum = spectrumOf (samples);

    for (size_t bin = 1; bin < spectrum.size(); ++bin)
    {
        const auto isHarmonic = bin % static_cast<size_t> (cyclesOfWindow) == 0;
        (isHarmonic ? purity.signal : purity.aliasing) += std::norm (spectrum[bin]);
    }

    purity.offset = std::max (purity.offset, std::abs (spectrum.front()) / double (numSamples));
}

Purity purityOf (const TableView& table, int cyclesOfWindow)
{
    const auto frames = play (table, cyclesOfWindow);
    std::vector<float> side (numSamples);
    Purity purity;

    for (const auto channel : { &Stereo::left, &Stereo::right })
    {
        std::ranges::transform (frames, side.begin(), channel);
        addSide (purity, side, cyclesOfWindow);
    }

    return purity;
}

juce::String key (size_t index)
{
    const auto hertz = cycles[index] * rate / double (numSamples);
    return "C" + juce::String (2 * int (index) + 1) + " (" + number (hertz, 0) + " Hz)";
}

/** How many tables fold back less than so much, key by key. */
juce::String
summaryRow (const juce::String& title, const std::vector<std::array<double, 4>>& ratios, double limit)
{
    const auto count = [&] (size_t i) {
        return juce::String (
            std::ranges::count_if (ratios, [=] (const auto& row) { return row[i] < limit; }));
    };

    return row ({ title, count (0), count (1), count (2), count (3), "" });
}

constexpr auto text = R"(
## Wavetables

Each table on four keys: what is no harmonic of the key, against what is, both sides together. There is one table for
all keys, so harmonics above 24 kHz fold back; see [wavetables.md](wavetables.md) for where each recipe ends. The last
column is the largest DC of the four, in dBFS.

)";
} // namespace

juce::String measureTables()
{
    const Audio::WavetableSynth::SampleList list (
        Audio::WavetableSynth::factorySources()); // without what this user has added
    std::vector<std::array<double, 4>> ratios;
    juce::String rows;

    for (auto i = 0; i < list.size(); ++i)
    {
        auto& ratio = ratios.emplace_back();
        auto offset = 0.0;

        for (size_t k = 0; k < cycles.size(); ++k)
        {
            const auto purity = purityOf (list.getTable (i), cycles[k]);
            ratio[k] = purity.ratio();
            offset = std::max (offset, purity.offset);
        }

        rows << row ({ list.getShortNames()[i],
                       decibelsOfPower (ratio[0]),
                       decibelsOfPower (ratio[1]),
                       decibelsOfPower (ratio[2]),
                       decibelsOfPower (ratio[3]),
                       decibels (offset) });
    }

    return text + tableHead ({ "Table", key (0), key (1), key (2), key (3), "DC" })
           + summaryRow ("tables below -60 dB", ratios, 1.0e-6)
           + summaryRow ("tables below -40 dB", ratios, 1.0e-4)
           + summaryRow ("tables below -20 dB", ratios, 1.0e-2) + rows;
}
} // namespace Zn::Measure
