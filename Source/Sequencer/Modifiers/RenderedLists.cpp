#include "Sequencer/Modifiers/RenderedLists.h"

#include <iterator>

namespace Zn::Sequencer::Modifiers
{
namespace
{
template <typename Element>
void moveBehind (std::vector<Element>& list, std::vector<Element>& more)
{
    list.insert (list.end(), std::make_move_iterator (more.begin()), std::make_move_iterator (more.end()));
}
} // namespace

void clipToSpan (RenderedEvents& events, Ranges::Span span)
{
    events.forEachList ([span] (auto& list) { clipToSpan (list, span); });
}

void shift (RenderedEvents& events, double quarters)
{
    events.forEachList ([quarters] (auto& list) {
        for (auto& element : list)
            element.time.start += quarters;
    });
}

void append (RenderedEvents& events, RenderedEvents&& more)
{
    moveBehind (events.notes, more.notes);
    moveBehind (events.sequences, more.sequences);
    moveBehind (events.marks, more.marks);
}

void sortByStart (RenderedEvents& events)
{
    events.forEachList ([] (auto& list) {
        std::stable_sort (list.begin(), list.end(), [] (const auto& a, const auto& b) {
            return a.time.start < b.time.start;
        });
    });
}

void clearLists (RenderedEvents& events) noexcept
{
    events.forEachList ([] (auto& list) { list.clear(); });
}
} // namespace Zn::Sequencer::Modifiers
