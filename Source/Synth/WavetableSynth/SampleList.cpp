#include "Synth/WavetableSynth/SampleList.h"

#include "Foundation/Singleton.h"
#include "Synth/Sampler/ResampledInternalBuffer.h"
#include "Synth/WavetableSynth/TableNames.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

namespace Zn::Audio::WavetableSynth
{
namespace
{
constexpr double tableRate = 1920000.0; // hertz: ten samples for one of a file at 192 kHz
constexpr int readBlock = 1024;         // samples
constexpr int builtInLength = 20480;    // samples
constexpr int fewestTables = 2;         // a choice needs as many

std::vector<TableSource> allSources()
{
    auto sources = factorySources();
    auto users = userSources (userFolder());
    std::move (users.begin(), users.end(), std::back_inserter (sources));
    return sources;
}

Wavetable evened (const juce::AudioBuffer<float>& cycle)
{
    return Wavetable { cycle, evenedLoudness (cycle) };
}

Wavetable builtIn (const std::function<float (double phase)>& shape)
{
    juce::AudioBuffer<float> cycle (1, builtInLength);

    for (auto i = 0; i < builtInLength; ++i)
        cycle.setSample (0, i, shape (double (i % (builtInLength - 1)) / (builtInLength - 1)));

    return evened (cycle);
}

Wavetable builtInSine()
{
    return builtIn ([] (double phase) {
        return static_cast<float> (std::sin (phase * juce::MathConstants<double>::twoPi));
    });
}

Wavetable builtInSquare()
{
    return builtIn ([] (double phase) { return phase < 0.5 ? 0.5f : -0.5f; });
}
} // namespace

const SampleList& SampleList::get()
{
    return Singleton::get<SampleList>();
}

SampleList::SampleList() : SampleList (allSources()) {}

SampleList::SampleList (std::vector<TableSource> sources)
{
    for (const auto& source : sources)
        addSource (source);

    if (size() < fewestTables)
        add ("Basics - Sine", builtInSine());

    if (size() < fewestTables)
        add ("Basics - Square", builtInSquare());
}

void SampleList::addSource (const TableSource& source)
{
    if (shortNames.contains (shortNameOf (source.displayName)))
        return;

    const auto reader = Sampler::Source::Reader::open (*source.source);

    if (reader == nullptr)
        return;

    const Sampler::ResampledInternalBuffer cycle (*reader, tableRate, readBlock);

    if (cycle.getBuffer().getNumChannels() > 0)
        add (source.displayName, evened (cycle.getBuffer()));
}

void SampleList::add (const juce::String& displayName, Wavetable table)
{
    tables.push_back (std::move (table));
    names.add (displayName);
    shortNames.add (shortNameOf (displayName));
}

const Kernels::TableView& SampleList::getTable (int index) const noexcept
{
    return tables[static_cast<std::size_t> (std::clamp (index, 0, size() - 1))].view();
}
} // namespace Zn::Audio::WavetableSynth
