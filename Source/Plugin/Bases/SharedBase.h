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
public:
    SharedBase() = default;

    /** A project keeps the host parameters itself; there is no more to save yet. */
    void getStateInformation (juce::MemoryBlock&) override {}
    void setStateInformation (const void*, int) override {}

protected:
    ManagedParameters managedParameters;
    HostParamList hostParameters { managedParameters };

private:
    const Singleton::UserToken singletons;
};
} // namespace Zn::Audio::Plugin
