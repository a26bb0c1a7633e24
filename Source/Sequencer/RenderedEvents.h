#pragma once

#include "Sequencer/PlayPosition.h"
#include "Sequencer/TimedNote.h"

#include <memory>
#include <vector>

namespace Zn::Sequencer
{
/** Tells that an emitter of notes covers a span of the rendered time. */
struct SequenceMark
{
    Ranges::Span time;                     // quarter notes
    std::shared_ptr<PlayPosition> emitter; // never null in a rendered list
    bool enabled = true;
};

/** A pattern laid out in time: what a tree of modifiers renders to. Times are quarter notes. */
struct RenderedEvents
{
    double start = 0.0, length = 0.0;
    std::vector<TimedNote> notes;
    std::vector<SequenceMark> sequences;
    std::vector<SequenceMark> marks;

    /** Calls a function with each of the three lists. */
    template <typename Function>
    void forEachList (Function&& function)
    {
        function (notes);
        function (sequences);
        function (marks);
    }
};
} // namespace Zn::Sequencer
