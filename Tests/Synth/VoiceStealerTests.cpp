#include "Synth/VoiceStealer.h"

#include <gtest/gtest.h>

#include <vector>

namespace Zn::Audio
{
namespace
{
constexpr auto held = [] (int note) { return StealCandidate { note, false, true }; };
constexpr auto pedalled = [] (int note) { return StealCandidate { note, false, false }; };
constexpr auto released = [] (int note) { return StealCandidate { note, true, false }; };
} // namespace

TEST (VoiceStealer, TakesWhatIsLeastMissed)
{
    const struct
    {
        const char* what;
        std::vector<StealCandidate> oldestFirst;
        int newNote, taken;
    } rows[] = {
        { "the same note, however old", { held (48), held (60), released (50), held (72) }, 60, 1 },
        { "the oldest release", { held (48), held (60), released (50), released (52), held (72) }, 61, 2 },
        { "a note whose key is up before one that is down",
          { held (48), held (60), pedalled (62), held (72) },
          61,
          2 },
        { "the oldest between the lowest and the highest",
          { held (72), held (48), held (60), held (62) },
          61,
          2 },
        { "the highest of two", { held (48), held (72) }, 61, 1 },
        { "the only one", { held (60) }, 61, 0 },
        { "a release, even below all others", { released (20), held (48), held (72) }, 61, 0 },
        { "the oldest of equal lowest notes is kept", { held (48), held (48), held (72) }, 61, 1 },
    };

    for (const auto& row : rows)
        EXPECT_EQ (DefaultVoiceStealer::choose (row.oldestFirst, row.newNote), row.taken) << row.what;
}
} // namespace Zn::Audio
