#pragma once

#include "Sequencer/Modifiers/Clip.h"
#include "Sequencer/PatternData.h"
#include "Sequencer/Swing.h"

namespace Zn::Sequencer
{
/** One slot on its way from what is drawn to what the audio thread plays. Thread: message. */
class PlaybackSlot
{
public:
    Modifiers::Clip clip;
    bool playing = true;
    bool looping = true;

    /** Lays the clip out, swings it and sorts it. A slot that does not play empties the result's lists and
        leaves its length; one too short to be looped is empty.
    */
    void render (const SwingWarp& swing, RenderedSlot& result) const;

    /** Keys `Clip`, `playing`, `looping`. */
    void reflect (Reflector& r);
};
} // namespace Zn::Sequencer
