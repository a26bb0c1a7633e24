#pragma once

#include "Sequencer/NoteEvent.h"

#include <juce_core/juce_core.h>

namespace Zn::GUI
{
/** What of a note is painted by a brush and shown in the lane. */
enum class NoteValue
{
    velocity,
    chance
};

/** "Velocity", "Chance". */
juce::String nameOf (NoteValue value);

/** "74 %". */
juce::String percentText (float proportion);

/** 0 to 1. */
float valueOf (const Sequencer::NoteEvent& event, NoteValue value) noexcept;

/** What a new note has. */
float defaultOf (NoteValue value) noexcept;

/** Limits it to 0..1. */
void setValue (Sequencer::NoteEvent& event, NoteValue value, float newValue) noexcept;

/** How far the velocity may be from its middle, 0 to 1. */
float spreadOf (const Sequencer::NoteEvent& event) noexcept;

/** Opens the spread as far up as down. */
void setSpread (Sequencer::NoteEvent& event, float newSpread) noexcept;
} // namespace Zn::GUI
