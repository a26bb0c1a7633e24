#pragma once

#include "Midi/Learn/Handler.h"
#include "Plugin/Bases/LearnedParam.h"

namespace Zn::Audio::Plugin
{
/** Moves a parameter; which messages do is for a derived class to say. */
class ParamMidiHandler : public Midi::Learn::Handler
{
public:
    /** The parameter outlives the handler's last use. */
    ParamMidiHandler (Midi::Learn::Binding bindingToKeep, LearnedParam& paramToMove)
        : binding (std::move (bindingToKeep)), param (paramToMove)
    {}

    const Midi::Learn::Binding& getBinding() const noexcept override { return binding; }

protected:
    void move (float normalised) noexcept { param.set (normalised); }

private:
    const Midi::Learn::Binding binding;
    LearnedParam& param;
};
} // namespace Zn::Audio::Plugin
