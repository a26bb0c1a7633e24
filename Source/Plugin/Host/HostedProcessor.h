#pragma once

#include "Plugin/Bases/WithEditor.h"
#include "Plugin/Vornel/Processor.h"

namespace Zn::Audio
{
/** The plug-in as a host gets it. Its editor lists the parameters. */
using HostedProcessor = Plugin::WithEditor<Plugins::Vornel::Processor, juce::GenericAudioProcessorEditor>;
} // namespace Zn::Audio
