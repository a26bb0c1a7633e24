#include "Midi/NoteGate.h"

#include "Support/MidiText.h"

#include <gtest/gtest.h>

using namespace Zn::Midi;
using namespace Zn::Tests;

namespace
{
/** One call of the gate. */
struct Call
{
    const char* input;
    bool open, keepNotes;
    const char* output;
};

void expectCalls (const char* name, std::initializer_list<Call> calls)
{
    NoteGate gate;
    auto number = 0;

    for (const auto& call : calls)
    {
        auto buffer = events (call.input);
        gate.process (buffer, call.open, call.keepNotes);
        EXPECT_EQ (text (buffer), call.output) << name << ", call " << number++;
    }
}
} // namespace

TEST (NoteGate, EndsWhatSoundsWhenItsStateChanges)
{
    expectCalls ("closing ends every note once, before what comes with it, which passes",
                 { { "on 60 @0, on 64 ch3 @1, on 67 @2, off 67 @3",
                     true,
                     true,
                     "on 60 @0, on 64 ch3 @1, on 67 @2, off 67 @3" },
                   { "on 60 @0, on 61 @0", false, true, "off 60 @0, off 64 ch3 @0, on 60 @0, on 61 @0" },
                   { "", false, true, "" } });

    expectCalls ("closing without events flushes too",
                 { { "on 60 @9", true, true, "on 60 @9" }, { "", false, true, "off 60 @0" } });

    expectCalls (
        "opening forgets what passed while closed",
        { { "on 60 @0", false, true, "on 60 @0" }, { "", true, true, "" }, { "", false, true, "" } });

    expectCalls ("opening ends what passed while closed if notes are not kept",
                 { { "on 60 @0", false, false, "on 60 @0" },
                   { "on 62 @0", true, false, "off 60 @0, on 62 @0" },
                   { "on 64 @0", true, false, "on 64 @0" },
                   { "", false, false, "off 62 @0, off 64 @0" } });

    expectCalls ("nothing happens while the state stays",
                 { { "on 60 @0", false, true, "on 60 @0" }, { "cc 1 2 @0", false, false, "cc 1 2 @0" } });
}

TEST (NoteGate, ExpandsTheControllersThatEndAllNotes)
{
    for (const auto* controller : { "120", "123" })
    {
        NoteGate gate;
        auto buffer = events (std::string ("on 60 @0, on 60 ch2 @0, on 62 @1, on 62 v0 @2, cc ") + controller
                              + " 0 ch9 @5, on 60 @5");
        gate.process (buffer, true, true);

        EXPECT_EQ (text (buffer),
                   "on 60 @0, on 60 ch2 @0, on 62 @1, on 62 v0 @2, off 60 @5, off 60 ch2 @5, on 60 @5");
    }
}
