#pragma once

#include "Sequencer/RenderedEvents.h"

#include <algorithm>

namespace Zn::Sequencer::Modifiers
{
/** Keeps the elements of a list that start inside a span, its end not included, and cuts those that overrun
    it. What starts before the span is dropped even when it reaches into it. An empty span does nothing.
*/
template <typename Element>
void clipToSpan (std::vector<Element>& list, Ranges::Span span)
{
    const auto end = span.end();

    if (end == span.start)
        return;

    std::erase_if (list, [&] (const Element& element) {
        return ! (element.time.start >= span.start && element.time.start < end);
    });

    for (auto& element : list)
    {
        auto& [start, length] = element.time;
        length = std::max (std::min (end, start + length) - start, 0.0);
    }
}

/** The same for all three lists. */
void clipToSpan (RenderedEvents& events, Ranges::Span span);

/** Moves all three lists by a number of quarter notes. */
void shift (RenderedEvents& events, double quarters);

/** Adds the three lists of another rendering behind those of the first. */
void append (RenderedEvents& events, RenderedEvents&& more);

/** Sorts all three lists by start. What starts together keeps its order. */
void sortByStart (RenderedEvents& events);

/** Empties all three lists; start and length stay. */
void clearLists (RenderedEvents& events) noexcept;
} // namespace Zn::Sequencer::Modifiers
