#include "Hosts/VST3Host.h"

#include <stdexcept>

namespace Zn::Tests
{
VST3Host::VST3Host (const std::string& bundle, double sampleRate, int maxBlockSize)
{
    juce::OwnedArray<juce::PluginDescription> found;
    format.findAllTypesForFile (found, bundle);

    if (found.isEmpty())
        throw std::runtime_error ("no VST3 plug-in in " + bundle);

    juce::String error;
    plugin = format.createInstanceFromDescription (*found.getFirst(), sampleRate, maxBlockSize, error);

    if (plugin == nullptr)
        throw std::runtime_error (error.toStdString());

    plugin->enableAllBuses();
    plugin->setRateAndBufferSizeDetails (sampleRate, maxBlockSize);
    plugin->prepareToPlay (sampleRate, maxBlockSize);
    audio.setSize (std::max (plugin->getTotalNumInputChannels(), plugin->getTotalNumOutputChannels()),
                   maxBlockSize);
}

VST3Host::~VST3Host()
{
    plugin->releaseResources();
}

void VST3Host::restore (const juce::MemoryBlock& chunk)
{
    // The host's own wrapping of the state around what the plug-in saves.
    juce::XmlElement state { "VST3PluginState" };
    state.createNewChildElement ("IComponent")->addTextElement (chunk.toBase64Encoding());

    juce::MemoryBlock wrapped;
    juce::AudioProcessor::copyXmlToBinary (state, wrapped);
    plugin->setStateInformation (wrapped.getData(), static_cast<int> (wrapped.getSize()));
    plugin->getStateInformation (wrapped); // what was loaded is taken in before it is saved
}

juce::MemoryBlock VST3Host::save()
{
    juce::MemoryBlock wrapped, chunk;
    plugin->getStateInformation (wrapped);

    if (const auto state =
            juce::AudioProcessor::getXmlFromBinary (wrapped.getData(), static_cast<int> (wrapped.getSize())))
        chunk.fromBase64Encoding (state->getChildElementAllSubText ("IComponent", {}).trim());

    return chunk;
}

juce::MidiBuffer VST3Host::run (int numSamples, const juce::MidiBuffer& midi)
{
    audio.setSize (audio.getNumChannels(), numSamples, false, false, true);
    audio.clear();

    auto events = midi;
    plugin->processBlock (audio, events);
    return events;
}
} // namespace Zn::Tests
