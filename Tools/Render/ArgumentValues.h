#pragma once

#include "Options.h"

namespace Zn::Render
{
// What stands behind an option, as a value. Each throws ArgumentError whose text goes on from the option's
// name: "needs 16, 24 or 32, not '17'".

juce::File fileFrom (const std::string&);
Options::Setting settingFrom (const std::string&);
int wavBitsFrom (const std::string&);
Options::Learned learnedFrom (const std::string&);
int slotFrom (const std::string&);
juce::int64 seedFrom (const std::string&);
double bpmFrom (const std::string&);
double sampleRateFrom (const std::string&);
double tailFrom (const std::string&); // seconds
BlockSizes blockSizesFrom (const std::string&);
std::optional<HostClock::Mode> clockFrom (const std::string&);
Loop loopFrom (const std::string&);
} // namespace Zn::Render
