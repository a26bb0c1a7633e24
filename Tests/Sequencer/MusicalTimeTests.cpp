#include "Sequencer/Duration.h"
#include "Support/Documents.h"

#include <gtest/gtest.h>

#include <limits>

namespace Zn::Sequencer
{
namespace
{
using namespace Tests;

TEST (Bars, AddUpToQuarterNotesAndStayFinite)
{
    constexpr auto most = std::numeric_limits<int>::max();

    const std::pair<std::vector<Bar>, double> rows[] {
        { {}, 0.0 },
        { { { 4, 4 } }, 4.0 },
        { { { 6, 8 }, { 1, 16 } }, 3.25 },
        { { { 0, 4 }, { 3, 4 } }, 3.0 },
        { { { 4, 0 }, { -4, 4 }, { 4, -4 }, { -1, -1 } }, 0.0 },
        { { { most, 1 }, { most, 1 } }, longestTime },
    };

    for (const auto& [bars, quarters] : rows)
        EXPECT_EQ (Bars { bars }.length(), quarters) << bars.size() << " bars";
}

TEST (MusicalTime, TellsItsListenerOfRealChangesOnly)
{
    std::vector<std::string> heard;
    MusicalTime time;
    time.setBars ({ { { 4, 4 }, { 3, 4 } } });
    time.setListener ([&heard] (int index, Bar before, Bar after) {
        heard.push_back (std::to_string (index) + ": " + std::to_string (before.num) + " to "
                         + std::to_string (after.num));
    });

    time.setBar (1, { 5, 4 });
    time.setBar (1, { 5, 4 });
    time.setBar (2, { 1, 4 });
    time.setBar (-1, { 1, 4 });

    auto copy = time;
    copy.setBar (0, { 7, 4 });
    load (time, parsed (R"({"Bars": [{"num": 2}]})"));

    EXPECT_EQ (heard, std::vector<std::string> { "1: 3 to 5" });
    EXPECT_EQ (copy.getBars(), (Bars { { { 7, 4 }, { 5, 4 } } }));
    EXPECT_EQ (time.getBars(), (Bars { { { 2, 4 } } }));
}

TEST (Duration, IgnoresItsBarsUnlessTheyAreInForce)
{
    Duration duration { .duration = 4.0, .mode = 1, .time = MusicalTime ({ 2, 4 }) };
    EXPECT_EQ (duration.value(), 4.0);

    duration.mode = 0;
    EXPECT_EQ (duration.value(), 2.0);
}

TEST (Duration, IsFiniteWhateverItHolds)
{
    using Limits = std::numeric_limits<double>;

    for (auto hostile : { Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), -1.0, 1.0e300 })
    {
        const auto value = Duration { .duration = hostile, .mode = 1, .time = {} }.value();
        EXPECT_TRUE (value >= 0.0 && value <= longestTime) << hostile;
    }
}

/** The fields of a pattern, as far as a duration is concerned. */
struct Owner
{
    Duration duration { .duration = 1.0, .mode = 1, .time = MusicalTime ({ 2, 4 }) };

    void reflect (Reflector& r) { duration.reflectIn (r); }
};

TEST (Duration, ReadsABareNumberOrAChild)
{
    const std::tuple<std::string, double, int> rows[] {
        { R"({"duration": 3})", 3.0, 1 },
        { R"({"duration": 0.0, "Duration": {"duration": 5.0, "mode": 0}})", 0.0, 1 },
        { R"({"duration": -1.0, "Duration": {"duration": 5.0, "mode": 0}})", 5.0, 0 },
        { R"({"duration": "7", "Duration": {"duration": 5.0}})", 5.0, 1 },
        { R"({"duration": true, "Duration": {"mode": "0"}})", 1.0, 0 },
        { R"({"Duration": {"mode": "bars", "duration": 2.5}})", 2.5, 1 },
        { R"({"Duration": {"mode": "99999999999999999999"}})", 1.0, 1 },
        { R"({"Duration": 8.0})", 1.0, 1 },
        { R"({})", 1.0, 1 },
    };

    for (const auto& [document, duration, mode] : rows)
    {
        Owner owner;
        load (owner, parsed (document));
        EXPECT_EQ (owner.duration.duration, duration) << document;
        EXPECT_EQ (owner.duration.mode, mode) << document;
    }
}

TEST (Duration, AlwaysWritesTheChild)
{
    Owner owner;
    load (owner, parsed (R"({"duration": 3.0})"));

    EXPECT_EQ (
        saved (owner),
        parsed (R"({"Duration": {"Time": {"Bars": [{"num": 2, "denum": 4}]}, "duration": 3.0, "mode": 1}})"));
}
} // namespace
} // namespace Zn::Sequencer
