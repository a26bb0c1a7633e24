#include "Tool.h"

#include "Foundation/Singleton.h"

#include <juce_events/juce_events.h>

#include <vector>

int main (int argc, char** argv)
{
    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Zn::Singleton::UserToken singletons;
    const std::vector<std::string> arguments (argv + 1, argv + argc);
    return Zn::PresetTool::runTool (arguments);
}
