#pragma once

#include "Sequencer/Emitter.h"
#include "Sequencer/Modifiers/TimedClip.h"
#include "Sequencer/MusicalTime.h"

namespace Zn::Sequencer::Modifiers
{
/** Clips over a number of bars. */
class Pattern : public Cloneable<Base, Pattern>
{
public:
    static constexpr auto typeName = "Pattern";

    std::vector<TimedClip> clips;
    MusicalTime time;

    /** Adds to what the target holds, then sets its length, and sorts and cuts all of it. */
    void render (RenderedEvents& target) const override;

private:
    void reflectFields (Reflector& r) override;

    Emitter emitter;
};
} // namespace Zn::Sequencer::Modifiers
