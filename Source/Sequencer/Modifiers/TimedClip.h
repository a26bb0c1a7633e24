#pragma once

#include "Sequencer/Modifiers/Clip.h"

namespace Zn::Sequencer::Modifiers
{
/** A clip at its place in a pattern. */
class TimedClip : public Cloneable<Base, TimedClip>
{
public:
    Clip clip;
    Ranges::Span time; // quarter notes of the pattern; a length of 0 does not cut the clip

    /** Adds to what the target holds. */
    void render (RenderedEvents& target) const override;

private:
    void reflectFields (Reflector& r) override;
};
} // namespace Zn::Sequencer::Modifiers
