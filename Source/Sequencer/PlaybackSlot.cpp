#include "Sequencer/PlaybackSlot.h"

#include "Sequencer/Modifiers/RenderedLists.h"

#include <cmath>

namespace Zn::Sequencer
{
namespace
{
bool canBeLooped (double length) noexcept
{
    constexpr auto shortest = 0.001; // quarter notes

    return std::isfinite (length) && length >= shortest;
}

void swingAndSort (RenderedEvents& events, const SwingWarp& swing)
{
    events.forEachList ([&swing] (auto& list) {
        for (auto& element : list)
            element.time = swing.moved (element.time);

        // Times that are no numbers have no place in an order.
        std::erase_if (list, [] (const auto& element) { return ! std::isfinite (element.time.end()); });
    });

    Modifiers::sortByStart (events);
}
} // namespace

void PlaybackSlot::render (const SwingWarp& swing, RenderedSlot& result) const
{
    result.playing = playing;
    result.looping = looping;

    if (! playing)
    {
        Modifiers::clearLists (result.events);
        return;
    }

    RenderedEvents rendered;
    clip.render (rendered);

    if (canBeLooped (rendered.length))
        swingAndSort (rendered, swing);
    else
        rendered = {};

    result.playLength = rendered.length;
    result.events = std::move (rendered);
}

void PlaybackSlot::reflect (Reflector& r)
{
    r.addChild ("Clip", clip);
    r.add ("playing", playing);
    r.add ("looping", looping);
}
} // namespace Zn::Sequencer
