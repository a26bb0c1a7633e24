#pragma once

#include "Plugin/Bases/ParamMidiHandler.h"

namespace Zn::Audio::Plugin
{
/** Lets a controller of any channel move a parameter over its whole range. Of the controllers only the sustain pedal
    is offered to handlers.
*/
class ParamMidiCCHandler : public ParamMidiHandler
{
public:
    using ParamMidiHandler::ParamMidiHandler;

    bool matches (const juce::MidiMessage& message) const noexcept override
    {
        return message.isControllerOfType (getBinding().number);
    }

    void handle (const juce::MidiMessage& message) noexcept override
    {
        move (static_cast<float> (message.getControllerValue()) / 127.0f);
    }
};
} // namespace Zn::Audio::Plugin
