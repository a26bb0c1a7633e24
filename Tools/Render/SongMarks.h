#pragma once

#include "SongTimeline.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Zn::Render
{
/** Changes of tempo and meter as a MIDI file writes them, one after the other along the render.

    With a loop they come again on every pass, and each pass begins with the tempo and meter of its start.
*/
class SongMarks
{
public:
    struct Mark
    {
        double elapsedQuarters = 0.0; // since the start of the render
        std::vector<std::uint8_t> bytes;
    };

    /** The timeline must outlive this. */
    explicit SongMarks (const SongTimeline&);

    /** Null behind the last one; with a loop there is always another. */
    const Mark* peek() const noexcept { return next < marks.size() ? &marks[next] : nullptr; }
    void pop();

private:
    void collectPass();

    const SongTimeline& timeline;
    std::int64_t pass = 0;
    std::vector<Mark> marks; // of this pass
    std::size_t next = 0;
};
} // namespace Zn::Render
