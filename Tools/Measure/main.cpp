#include "Sections.h"

#include "Foundation/Singleton.h"

#include <juce_events/juce_events.h>

#include <iostream>

namespace
{
constexpr auto heading = R"(# The sound in numbers

Written by `vornel-measure`, at 48 kHz, without the vector instructions unless a section says so; see
`CONTRIBUTING.md` in the sources for how to make it anew. Levels are in decibels; 0 dBFS is a sample of 1.
)";
}

int main()
{
    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Zn::Singleton::UserToken keepTables;

    std::cout << heading;

    for (const auto measure : { Zn::Measure::measureBlocks,
                                Zn::Measure::measureDelay,
                                Zn::Measure::measureFilter,
                                Zn::Measure::measureTables })
        std::cout << measure();
}
