#include "Foundation/GUIToRealTime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <thread>

namespace Zn
{
namespace
{
using Ring = GUIToRealTime<int, 5>;

template <typename End>
concept CanPublish = requires (End end)
{
    end.publish ([] (auto&) {});
};

static_assert (CanPublish<Ring::Writer> && ! CanPublish<Ring::Reader>);

void publish (Ring::Writer writer, int value)
{
    writer.publish ([value] (int& frame) { frame = value; });
}

/** A value long enough to be torn: all of its words are the same. */
struct Wide
{
    std::array<int, 64> words {};

    bool isWhole() const noexcept
    {
        return std::all_of (words.begin(), words.end(), [this] (int word) { return word == words.front(); });
    }
};
} // namespace

TEST (GUIToRealTime, AlwaysReadsTheNewestHoweverManyWritesLieBetween)
{
    for (auto writesBetween = 1; writesBetween <= 12; ++writesBetween)
    {
        Ring ring (0);
        auto reader = ring.getReader();
        auto value = 0;

        for (auto read = 0; read < 12; ++read)
        {
            for (auto i = 0; i < writesBetween; ++i)
                publish (ring.getWriter(), ++value);

            ASSERT_EQ (reader.newest(), value) << writesBetween << " writes before each read";
            ASSERT_EQ (reader.newest(), value) << "read twice";
        }
    }
}

TEST (GUIToRealTime, NeverWritesTheFrameThatTheReaderHolds)
{
    Ring ring (0);
    auto reader = ring.getReader();

    for (auto start = 1; start < 1000; start += 20)
    {
        publish (ring.getWriter(), start);
        const auto& held = reader.newest();

        for (auto i = 1; i < 20; ++i)
        {
            publish (ring.getWriter(), start + i);
            ASSERT_EQ (held, start);
        }
    }
}

TEST (GUIToRealTime, KeepsNothingOldAliveAfterReplacingAll)
{
    GUIToRealTime<std::shared_ptr<int>, 5> ring;
    auto old = std::make_shared<int> (1);

    for (auto i = 0; i < 7; ++i)
        ring.getWriter().publish ([&old] (auto& frame) { frame = old; });

    ring.getReader().newest();
    ring.getWriter().replaceAll (std::make_shared<int> (2));
    EXPECT_LE (old.use_count(), 2) << "only the frame that the reader holds may keep it";

    ring.getReader().newest();
    ring.getWriter().replaceAll (nullptr);
    EXPECT_EQ (old.use_count(), 1);
}

TEST (GUIToRealTime, GivesNoTornAndNoOlderValueToAReaderOnAnotherThread)
{
    constexpr auto lastValue = 200000;
    GUIToRealTime<Wide, 5> ring;

    std::jthread writer ([&ring] {
        for (auto value = 1; value <= lastValue; ++value)
            ring.getWriter().publish ([value] (Wide& frame) { frame.words.fill (value); });
    });

    auto reader = ring.getReader();
    auto last = 0, torn = 0, backwards = 0;

    while (last < lastValue)
    {
        const auto& frame = reader.newest();
        torn += frame.isWhole() ? 0 : 1;
        backwards += frame.words.front() < last ? 1 : 0;
        last = std::max (last, frame.words.front());
    }

    EXPECT_EQ (torn, 0);
    EXPECT_EQ (backwards, 0);
}
} // namespace Zn
