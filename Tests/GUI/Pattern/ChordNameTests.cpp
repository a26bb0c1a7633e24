#include "GUI/Pattern/ChordName.h"

#include "GUI/Widgets/ValueText.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
TEST (ChordName, SaysWhatAMusicianWould)
{
    struct Row
    {
        Midi::NoteList keys; // C2 is 48
        const char* name;
    };

    const Row rows[] {
        { {}, "" },
        { { 57 }, "A2" },
        { { 48, 52, 55 }, "C" },
        { { 60, 52, 55 }, "C/E" },
        { { 55, 60, 64 }, "C/G" },
        { { 57, 60, 64, 67 }, "Am7" },
        { { 48, 52, 55, 57 }, "C6" },
        { { 45, 52, 57, 60, 64 }, "Am" },
        { { 48, 55 }, "C5" },
        { { 43, 48 }, "C5/G" },
        { { 48, 50, 55 }, "Csus2" },
        { { 55, 60, 62 }, "Gsus4" },
        { { 47, 50, 53, 57 }, "Bm7b5" },
        { { 48, 51, 54, 57 }, "Cdim7" },
        { { 48, 52, 56 }, "Caug" },
        { { 50, 54, 57, 60 }, "D7" },
        { { 53, 57, 60, 64 }, "Fmaj7" },
        { { 40, 48, 55, 59 }, "Cmaj7/E" },
        { { 48, 52, 58 }, "C7" },
        { { 43, 53, 57, 59, 62 }, "G9" },
        { { 48, 50, 52, 55 }, "Cadd9" },
        { { 50, 53, 57, 60, 64 }, "Dm9" },
        { { 48, 52, 55, 57, 62 }, "C6/9" },
        { { 43, 53, 57, 59, 64 }, "G13" },
        { { 48, 58, 62, 65 }, "Bb/C" },
        { { 48, 49, 50, 51 }, "4 keys" },
    };

    for (const auto& row : rows)
        EXPECT_EQ (chordName (row.keys, 3), juce::String (row.name)) << "lowest key first";

    EXPECT_EQ (chordName ({ 60 }, 4), "C4");
}

TEST (ChordName, IsTheSameInEveryKey)
{
    for (auto root = 36; root < 48; ++root)
    {
        const auto name = pitchName (root, 3).dropLastCharacters (1);
        EXPECT_EQ (chordName ({ root, root + 3, root + 7, root + 10 }, 3), name + "m7");
        EXPECT_EQ (chordName ({ root + 4, root + 7, root + 12 }, 3),
                   name + "/" + pitchName (root + 4, 3).dropLastCharacters (1));
    }
}
} // namespace Zn::GUI
