#include "Tool.h"

#include "Plugin/Bases/StateChunk.h"
#include "Plugin/Vornel/Processor.h"

#include <juce_events/juce_events.h>

#include <csignal>
#include <vector>

juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter(); // what every host calls

namespace
{
using Vornel = Zn::Audio::Plugins::Vornel::Processor;

std::atomic<bool> interrupted { false };
static_assert (std::atomic<bool>::is_always_lock_free); // a signal handler writes it

void interrupt (int)
{
    interrupted = true;
}

auto& stateOf (juce::AudioProcessor& processor)
{
    return dynamic_cast<Vornel&> (processor).getState();
}

bool loadState (juce::AudioProcessor& processor, const juce::MemoryBlock& chunk)
{
    const auto size = static_cast<int> (chunk.getSize());

    if (Zn::Audio::Plugin::StateChunk::read (chunk.getData(), size).empty())
        return false;

    processor.setStateInformation (chunk.getData(), size);
    return true;
}

void learn (juce::AudioProcessor& processor, const Zn::Render::Options::Learned& learned)
{
    using Target = Zn::Midi::Learn::Target;
    const auto target = learned.slot ? Target::forSlot (*learned.slot) : Target::forParam (learned.parameter);
    stateOf (processor).learnMap.bind ({ target, learned.number });
}

Zn::Render::ProcessorAccess accessToVornel()
{
    return {
        .create = [] { return std::unique_ptr<juce::AudioProcessor> (createPluginFilter()); },
        .selectSlot = [] (auto& processor,
                          int slot) { dynamic_cast<Vornel&> (processor).setStartSlot (slot); },
        .learn = learn,
        .setSeed = [] (auto& processor, auto seed) { dynamic_cast<Vornel&> (processor).setSeed (seed); },
        .loadPreset = [] (auto& processor,
                          const auto& file) { return ! stateOf (processor).load (file).is_null(); },
        .loadSound =
            [] (auto& processor, const auto& file) {
                return ! stateOf (processor).synthPreset.load (file).is_null();
            },
        .loadState = loadState,
    };
}
} // namespace

int main (int argc, char** argv)
{
    std::signal (SIGINT, interrupt);
    std::signal (SIGTERM, interrupt);

    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const std::vector<std::string> arguments (argv + 1, argv + argc);
    return Zn::Render::runTool (arguments, accessToVornel(), interrupted);
}
