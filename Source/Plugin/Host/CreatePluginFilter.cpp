#include "Plugin/Host/HostedProcessor.h"

/** What every format's client calls for a new instance, and then owns. */
juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter()
{
    return Zn::Audio::makeHostedProcessor().release();
}
