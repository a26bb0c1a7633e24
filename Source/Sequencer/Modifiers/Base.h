#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "Presets/Reflection/Reflector.h"
#include "Sequencer/Modifiers/CloneableInterface.h"
#include "Sequencer/RenderedEvents.h"

#include <juce_core/juce_core.h>

namespace Zn::Sequencer::Modifiers
{
/** A part of a pattern: notes, or something that arranges other parts. A pattern is a small tree of these.

    Broadcasts its changes. Copies take what is drawn and leave the listeners. Thread: message.
*/
class Base : public Events::HasBroadcaster, public CloneableInterface<Base>
{
public:
    juce::String name;

    /** Lays the part out in time. An empty target gets what the part plays; how a target is treated that
        holds something already is up to the class.
    */
    virtual void render (RenderedEvents& target) const = 0;

    /** Handles `name`, then the fields of the class. */
    void reflect (Reflector& r);

protected:
    virtual void reflectFields (Reflector& r) = 0;
};
} // namespace Zn::Sequencer::Modifiers
