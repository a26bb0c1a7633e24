#include "Sequencer/TimedNote.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zn::Sequencer
{
namespace
{
/** The part of a note that its event does not name: how likely it sounds, and how much its velocity varies.
*/
struct Play
{
    NoteEvent& event;

    bool isDefault() const noexcept
    {
        const NoteEvent fresh;

        return event.chance == fresh.chance && event.spreadLow == fresh.spreadLow
               && event.spreadHigh == fresh.spreadHigh;
    }

    void setToDefault() noexcept
    {
        const NoteEvent fresh;

        event.chance = fresh.chance;
        event.spreadLow = fresh.spreadLow;
        event.spreadHigh = fresh.spreadHigh;
    }

    void limit() noexcept
    {
        const auto limited = [] (float value, float low, float high, float otherwise) {
            return std::isfinite (value) ? std::clamp (value, low, high) : otherwise;
        };

        event.chance = limited (event.chance, 0.0f, 1.0f, 1.0f);
        event.spreadLow = limited (event.spreadLow, -1.0f, 1.0f, 0.0f);
        event.spreadHigh = limited (event.spreadHigh, -1.0f, 1.0f, 0.0f);

        if (event.spreadLow > event.spreadHigh)
            std::swap (event.spreadLow, event.spreadHigh);
    }

    void reflect (Reflector& r)
    {
        r.add ("chance", event.chance);
        r.add ("spreadLow", event.spreadLow);
        r.add ("spreadHigh", event.spreadHigh);

        if (r.isLoading())
            limit();
    }
};

void addPlay (Reflector& r, NoteEvent& event)
{
    Play play { event };

    if (r.isLoading())
        play.setToDefault();
    else if (play.isDefault())
        return;

    r.addChild ("Play", play);
}
} // namespace

void TimedNote::reflect (Reflector& r)
{
    r.add ("enabled", enabled);
    r.addChild ("Time", time);
    r.addChild ("Event", event);
    addPlay (r, event);
}
} // namespace Zn::Sequencer
