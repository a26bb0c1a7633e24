#pragma once

#include "Foundation/Singleton.h"
#include "Parameters/HostParamList.h"
#include "Plugin/Bases/ProcessorBase.h"

namespace Zn::Audio::Plugin
{
/** Keeps what a plug-in shares with its host: the list of parameters, and the singletons of the process for as long
    as the plug-in lives.
*/
class SharedBase : public ProcessorBase
{
    const Singleton::UserToken singletons; // first: whatever comes after may use them to its end

public:
    SharedBase() = default;

    /** Adds nothing to a host's project: what comes back is what the host keeps of the parameters itself. */
    void getStateInformation (juce::MemoryBlock&) override {}
    void setStateInformation (const void*, int) override {}

protected:
    ManagedParameters managedParameters;
    HostParamList hostParameters { managedParameters };
};
} // namespace Zn::Audio::Plugin
