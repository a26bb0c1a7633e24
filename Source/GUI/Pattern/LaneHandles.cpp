#include "GUI/Pattern/LaneHandles.h"

#include <algorithm>
#include <tuple>

namespace Zn::GUI
{
namespace
{
// All of a handle's diameter.
constexpr auto padAbove = 1.46f, padBelow = 0.44f; // of the lane
constexpr auto firstOffset = 0.73f;                // behind a note's start
constexpr auto fanOffset = 1.32f; // between notes that start together: 9 pixels in a usual window
constexpr auto reach = 1.0f;      // of the pointer, around a handle's middle

constexpr auto together = 1.0e-6; // parts of the pattern
} // namespace

float LaneGeometry::yOf (float value) const noexcept
{
    const auto top = padAbove * handle;
    const auto foot = height - padBelow * handle;
    return foot + std::clamp (value, 0.0f, 1.0f) * (top - foot);
}

float LaneGeometry::valueAt (float y) const noexcept
{
    const auto top = padAbove * handle;
    const auto foot = height - padBelow * handle;
    return (foot - y) / std::max (1.0f, foot - top);
}

float LaneGeometry::offsetOfFan() const noexcept
{
    return firstOffset * handle;
}

std::vector<LaneHandle>
LaneGeometry::handlesOf (const Drawing& drawing, NoteValue value, const RollGeometry& roll) const
{
    std::vector<LaneHandle> handles (drawing.notes.size());

    for (std::size_t index = 0; index < handles.size(); ++index)
        handles[index].note = static_cast<int> (index);

    const auto noteOf = [&] (const LaneHandle& handleToFind) -> const Sequencer::TimedNote& {
        return drawing.note (handleToFind.note);
    };

    std::stable_sort (handles.begin(), handles.end(), [&] (const LaneHandle& a, const LaneHandle& b) {
        const auto &first = noteOf (a), &second = noteOf (b);
        return std::tie (first.time.start, first.event.noteNum)
               < std::tie (second.time.start, second.event.noteNum);
    });

    auto fan = 0.0f;
    auto lastStart = -1.0;

    for (auto& each : handles)
    {
        const auto& note = noteOf (each);
        fan = note.time.start - lastStart < together ? fan + fanOffset : firstOffset;
        lastStart = note.time.start;
        each.position = { float (roll.pixelOf (note.time.start)) + fan * handle,
                          yOf (valueOf (note.event, value)) };
    }

    return handles;
}

int LaneGeometry::hit (juce::Point<float> point, const std::vector<LaneHandle>& handles) const noexcept
{
    auto nearest = reach * handle;
    auto note = -1;

    for (const auto& each : handles)
        if (const auto distance = each.position.getDistanceFrom (point); distance < nearest)
        {
            nearest = distance;
            note = each.note;
        }

    return note;
}
} // namespace Zn::GUI
