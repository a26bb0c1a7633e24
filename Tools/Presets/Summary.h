#pragma once

#include "Preset.h"

namespace Zn::PresetTool
{
/** A preset for people to read: its patterns drawn, its values by name. Throws Refused if loading breaks off. */
juce::String summaryOf (const Preset& preset);
} // namespace Zn::PresetTool
