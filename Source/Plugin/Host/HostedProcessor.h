#pragma once

#include "GUI/Editor/Page.h"
#include "Plugin/Bases/StateEditor.h"
#include "Plugin/Bases/WithEditor.h"
#include "Plugin/Vornel/Processor.h"

#include <memory>

namespace Zn::Audio
{
/** The plug-in as a host gets it. */
using HostedProcessor = Plugin::WithEditor<Plugins::Vornel::Processor,
                                           Plugin::StateEditor<Plugins::Vornel::Processor, GUI::Page>>;

#if defined(JucePlugin_IsMidiEffect) && JucePlugin_IsMidiEffect
inline constexpr auto roleOfBuild = Role::midiEffect;
#else
inline constexpr auto roleOfBuild = Role::instrument; // and in a program that is no plug-in
#endif

/** A new one in the role that this build is for. */
inline std::unique_ptr<HostedProcessor>
makeHostedProcessor (Plugins::Vornel::StartUp startUp = Plugins::Vornel::StartUp::presets)
{
    return std::make_unique<HostedProcessor> (startUp, roleOfBuild);
}
} // namespace Zn::Audio
