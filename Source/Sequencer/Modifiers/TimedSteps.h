#pragma once

#include "Sequencer/Modifiers/StepPulseSequencer.h"

namespace Zn::Sequencer::Modifiers
{
/** A lane: drawn patterns played one after another on one channel. */
class TimedSteps : public Base
{
public:
    using Sequences = std::vector<std::unique_ptr<StepPulseSequencer>>;

    bool mute = false;   // plays nothing but holds its place
    bool solo = false;   // for the owner of several lanes to heed
    Sequences sequences; // none is null
    Duration duration;   // how long the lane lasts when it plays nothing
    int channel = 1;     // of all its notes; not saved

    TimedSteps();
    TimedSteps (const TimedSteps& other);
    TimedSteps& operator= (const TimedSteps& other);

    std::unique_ptr<Base> clone() const override;

    /** Adds to what the target holds; all of it is then sorted and goes to the lane's channel. */
    void render (RenderedEvents& target) const override;

private:
    /** Keys `Sequences`, `Duration`, `mute`, `solo`. Broadcasts a change after loading. */
    void reflectFields (Reflector& r) override;
};
} // namespace Zn::Sequencer::Modifiers
