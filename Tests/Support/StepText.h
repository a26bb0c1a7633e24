#pragma once

#include "Sequencer/Modifiers/Base.h"

#include <sstream>
#include <string>
#include <string_view>

namespace Zn::Tests
{
/** An enabled note of a row. Times in quarter notes, or fractions of a pattern. */
inline Sequencer::TimedNote note (int row, double start, double length)
{
    Sequencer::TimedNote result { .time = { start, length }, .event = {}, .enabled = true };
    result.event.noteNum = row;
    return result;
}

/** A drawing of one row, a column per character: x starts a step, - prolongs it, o is a disabled one. */
inline std::vector<Sequencer::TimedNote> steps (std::string_view drawing, int row = 60)
{
    std::vector<Sequencer::TimedNote> result;
    const auto width = 1.0 / static_cast<double> (drawing.size());

    for (std::size_t column = 0; column < drawing.size(); ++column)
    {
        if (drawing[column] == 'x' || drawing[column] == 'o')
        {
            result.push_back (note (row, static_cast<double> (column) * width, width));
            result.back().enabled = drawing[column] == 'x';
        }
        else if (drawing[column] == '-' && ! result.empty())
        {
            result.back().time.length += width;
        }
    }

    return result;
}

/** "60 @0+0.25, 64 @0.5+1": a list of notes to compare and to read. */
inline std::string asText (const std::vector<Sequencer::TimedNote>& notes)
{
    std::ostringstream text;

    for (const auto& element : notes)
        text << (text.tellp() > 0 ? ", " : "") << element.event.noteNum << " @" << element.time.start << "+"
             << element.time.length;

    return text.str();
}

/** "@0+4": a list of marks. */
inline std::string asText (const std::vector<Sequencer::SequenceMark>& marks)
{
    std::ostringstream text;

    for (const auto& mark : marks)
        text << (text.tellp() > 0 ? ", " : "") << "@" << mark.time.start << "+" << mark.time.length;

    return text.str();
}

/** All of a rendering, but for whose the marks are. */
inline std::string asText (const Sequencer::RenderedEvents& events)
{
    std::ostringstream text;
    text << events.start << "+" << events.length << " notes: " << asText (events.notes)
         << " sequences: " << asText (events.sequences) << " marks: " << asText (events.marks);
    return text.str();
}
/** What a part of a pattern plays by itself. */
inline Sequencer::RenderedEvents rendered (const Sequencer::Modifiers::Base& modifier)
{
    Sequencer::RenderedEvents events;
    modifier.render (events);
    return events;
}
} // namespace Zn::Tests
