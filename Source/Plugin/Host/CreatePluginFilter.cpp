#include "Plugin/Bases/WithEditor.h"
#include "Plugin/Vornel/Processor.h"

namespace
{
using namespace Zn::Audio;

/** The plug-in as a host gets it. Its editor lists the parameters. */
using HostedProcessor = Plugin::WithEditor<Plugins::Vornel::Processor, juce::GenericAudioProcessorEditor>;
} // namespace

/** What every format's client calls for a new instance, and then owns. */
juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter()
{
    return new HostedProcessor();
}
