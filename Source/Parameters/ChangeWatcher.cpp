#include "Parameters/ChangeWatcher.h"

namespace Zn::Parameters
{
ChangeWatcher::ChangeWatcher (std::vector<juce::AudioProcessorParameter*> parametersToWatch,
                              CallbackFunc callbackToUse)
    : parameters (std::move (parametersToWatch))
    , callback (std::move (callbackToUse))
    , timer ([this] { answer(); })
{
    for (auto* parameter : parameters)
        parameter->addListener (this);
}

ChangeWatcher::~ChangeWatcher()
{
    for (auto* parameter : parameters)
        parameter->removeListener (this);
}

void ChangeWatcher::answer()
{
    if (changed.exchange (false))
        callback();
}
} // namespace Zn::Parameters
