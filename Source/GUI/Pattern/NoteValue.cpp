#include "GUI/Pattern/NoteValue.h"

#include <algorithm>

namespace Zn::GUI
{
juce::String nameOf (NoteValue value)
{
    return value == NoteValue::velocity ? "Velocity" : "Chance";
}

juce::String percentText (float proportion)
{
    return juce::String (juce::roundToInt (100.0f * proportion)) + " %";
}

float valueOf (const Sequencer::NoteEvent& event, NoteValue value) noexcept
{
    return std::clamp (value == NoteValue::velocity ? event.velocity : event.chance, 0.0f, 1.0f);
}

float defaultOf (NoteValue value) noexcept
{
    return valueOf (Sequencer::NoteEvent(), value);
}

void setValue (Sequencer::NoteEvent& event, NoteValue value, float newValue) noexcept
{
    (value == NoteValue::velocity ? event.velocity : event.chance) = std::clamp (newValue, 0.0f, 1.0f);
}

float spreadOf (const Sequencer::NoteEvent& event) noexcept
{
    return 0.5f * (event.spreadHigh - event.spreadLow);
}

void setSpread (Sequencer::NoteEvent& event, float newSpread) noexcept
{
    event.spreadHigh = std::clamp (newSpread, 0.0f, 1.0f);
    event.spreadLow = -event.spreadHigh;

    if (event.spreadHigh == 0.0f)
        event.spreadLow = 0.0f; // not minus nought
}
} // namespace Zn::GUI
