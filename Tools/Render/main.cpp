#include "Tool.h"

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

Zn::Render::ProcessorAccess accessToVornel()
{
    return {
        .create = [] { return std::unique_ptr<juce::AudioProcessor> (createPluginFilter()); },
        .selectSlot = [] (auto& processor,
                          int slot) { dynamic_cast<Vornel&> (processor).setStartSlot (slot); },
        .setSeed = [] (auto& processor, auto seed) { dynamic_cast<Vornel&> (processor).setSeed (seed); },
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
