#pragma once

#include "GUI/Editor/Page.h"
#include "Plugin/Bases/StateEditor.h"
#include "Plugin/Bases/WithEditor.h"
#include "Plugin/Vornel/Processor.h"

namespace Zn::Audio
{
/** The plug-in as a host gets it. */
using HostedProcessor = Plugin::WithEditor<Plugins::Vornel::Processor,
                                           Plugin::StateEditor<Plugins::Vornel::Processor, GUI::Page>>;
} // namespace Zn::Audio
