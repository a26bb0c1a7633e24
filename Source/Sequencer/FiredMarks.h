#pragma once

#include "Sequencer/PlayPosition.h"

#include <algorithm>
#include <array>
#include <span>

namespace Zn::Sequencer
{
/** A sequence mark that the clock has passed. */
struct FiredMark
{
    const PlayPosition* emitter = nullptr; // tells the mark from others; not to be read through later
    int sample = 0;
    double position = 0.0; // quarter notes in the pattern
};

/** The marks of one call in the order of their samples. Drops what comes when it is full. Thread: audio. */
class FiredMarks
{
public:
    void clear() noexcept { size = 0; }
    std::span<const FiredMark> get() const noexcept { return { marks.data(), size }; }

    void add (const FiredMark& mark) noexcept
    {
        if (size == marks.size())
            return;

        const auto end = marks.begin() + static_cast<std::ptrdiff_t> (size);
        const auto isEarlier = [] (const FiredMark& a, const FiredMark& b) { return a.sample < b.sample; };
        const auto place = std::upper_bound (marks.begin(), end, mark, isEarlier);

        std::move_backward (place, end, end + 1);
        *place = mark;
        ++size;
    }

private:
    std::array<FiredMark, 64> marks {}; // far more than a block passes
    std::size_t size = 0;
};
} // namespace Zn::Sequencer
