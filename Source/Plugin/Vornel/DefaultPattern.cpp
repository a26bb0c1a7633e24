#include "Plugin/Vornel/DefaultPattern.h"

#include <array>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
constexpr int columns = 16;
constexpr int lowestHeld = 64; // the row of the lowest held note; rows walk up the chord from there

struct DrawnNote
{
    int column, row;
    float velocity;
    int length = 1; // columns
};

constexpr std::array walk {
    DrawnNote { 0, 0, 0.95f },  DrawnNote { 1, 1, 0.55f },  DrawnNote { 2, 2, 0.70f },
    DrawnNote { 3, 3, 0.60f },  DrawnNote { 4, 4, 0.85f },  DrawnNote { 5, 3, 0.55f },
    DrawnNote { 6, 2, 0.70f },  DrawnNote { 7, 1, 0.50f },  DrawnNote { 8, 2, 0.90f },
    DrawnNote { 9, 3, 0.55f },  DrawnNote { 10, 4, 0.75f }, DrawnNote { 11, 5, 0.60f },
    DrawnNote { 12, 6, 0.85f }, DrawnNote { 13, 4, 0.60f }, DrawnNote { 14, 3, 0.70f },
    DrawnNote { 15, 2, 0.55f },
};

Sequencer::TimedNote stepFrom (const DrawnNote& note)
{
    Sequencer::TimedNote step;
    step.time = { note.column / double (columns), note.length / double (columns) };
    step.event.noteNum = lowestHeld + note.row;
    step.event.velocity = note.velocity;
    step.enabled = true;
    return step;
}
} // namespace

void drawDefaultPattern (Sequencer::PatternSlot& slot)
{
    slot.reset();

    for (const auto& note : walk)
        slot.pattern.steps.push_back (stepFrom (note));
}
} // namespace Zn::Audio::Plugins::Vornel
