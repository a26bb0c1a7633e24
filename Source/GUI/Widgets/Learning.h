#pragma once

#include "Foundation/Events/HasBroadcaster.h"
#include "Foundation/Events/Listener.h"
#include "Plugin/Vornel/LearnMap.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** The mode in which a click on a control makes the next key or the pedal its own. Tells when the mode or what is
    learned has changed. Thread: message.
*/
class Learning : public Events::HasBroadcaster
{
public:
    using LearnMap = Audio::Plugins::Vornel::LearnMap;
    using Target = LearnMap::Target;

    explicit Learning (LearnMap& mapToUse);

    bool isActive() const noexcept { return active; }

    /** Leaving the mode stops waiting for a message. */
    void setActive (bool shouldBeActive);

    /** Waits for the next message for a target, or no longer if it was waiting for that. */
    void arm (const Target& target);
    void disarm();
    bool isArmed (const Target& target) const;

    void forget (const Target& target);

    /** As "Db3" or "Pedal"; empty while nothing is learned for a target. */
    juce::String textOf (const Target& target) const;

    /** The octave that note 60 stands in, for the names of keys. */
    void setMiddleC (int octave) noexcept { middleC = octave; }

    LearnMap& getMap() noexcept { return map; }

private:
    LearnMap& map;
    bool active = false;
    int middleC = 3;
    Events::Listener listener;
};
} // namespace Zn::GUI
