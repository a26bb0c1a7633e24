#pragma once

#include "GUI/Pattern/Drawing.h"
#include "GUI/Pattern/NoteValue.h"
#include "GUI/Pattern/RollGeometry.h"

namespace Zn::GUI
{
/** The handle that shows a note's value in the lane. */
struct LaneHandle
{
    int note = -1;                  // index
    juce::Point<float> position {}; // of its middle, in the lane, pixels

    bool operator== (const LaneHandle&) const = default;
};

/** Where values and handles lie in the lane. A value; thread: any. */
struct LaneGeometry
{
    float height = 1.0f; // of the lane, pixels
    float handle = 7.0f; // diameter, pixels

    /** Of a value 0 to 1. */
    float yOf (float value) const noexcept;

    /** Below the foot and above the top too. */
    float valueAt (float y) const noexcept;

    /** Where handles of notes that start at a time begin, behind it. */
    float offsetOfFan() const noexcept;

    /** One for each note, by their starts. Those that start together fan out to the right, by rows. */
    std::vector<LaneHandle>
    handlesOf (const Drawing& drawing, NoteValue value, const RollGeometry& roll) const;

    /** The note of the handle nearest to a point, -1 if none is close enough to be meant. */
    int hit (juce::Point<float> point, const std::vector<LaneHandle>& handles) const noexcept;
};
} // namespace Zn::GUI
