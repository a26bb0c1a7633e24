#include "GUI/Pattern/NoteMatch.h"

#include <map>
#include <tuple>

namespace Zn::GUI
{
namespace
{
auto placeOf (const Sequencer::TimedNote& note)
{
    return std::tuple (note.time.start, note.time.length, note.event.noteNum);
}
} // namespace

NoteSelection selectionStillIn (const std::vector<Sequencer::TimedNote>& after, const Drawing& before)
{
    if (before.selection.isEmpty())
        return {};

    std::multimap<std::tuple<double, double, int>, int> places;

    for (std::size_t i = 0; i < after.size(); ++i)
        places.emplace (placeOf (after[i]), static_cast<int> (i));

    NoteSelection remaining;

    for (const auto note : before.selection)
    {
        const auto found = places.find (placeOf (before.note (note)));

        if (found == places.end())
            continue;

        remaining.set (found->second, true);
        places.erase (found);
    }

    return remaining;
}
} // namespace Zn::GUI
