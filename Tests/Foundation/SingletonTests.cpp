#include "Foundation/Singleton.h"

#include "Foundation/Events/GarbageCollector.h"
#include "Foundation/Events/RefCountedHolder.h"

#include <gmock/gmock.h>

#include <atomic>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace Zn::Singleton
{
namespace
{
std::vector<std::string>& diary()
{
    static std::vector<std::string> entries;
    return entries;
}

struct Clock
{
    explicit Clock (int speedToUse = 1) : speed (speedToUse) { diary().emplace_back ("clock built"); }
    ~Clock() { diary().emplace_back ("clock gone"); }

    int speed;
};

struct Orchestra
{
    Orchestra() : clock (get<Clock>()) { diary().emplace_back ("orchestra built"); }
    ~Orchestra() { diary().emplace_back ("orchestra gone"); }

    Clock& clock;
};

struct Collected
{
    ~Collected() { diary().emplace_back ("garbage gone"); }
};

/** Counts how many of it exist at once, from any thread. */
struct Counted
{
    Counted() { ++built, ++alive; }
    ~Counted() { --alive; }

    inline static std::atomic<int> built { 0 }, alive { 0 };
};
} // namespace

using ::testing::ElementsAre;

TEST (Singleton, IsDeletedInReverseOrderOfCreationWithTheLastUserAndTheCollectorLast)
{
    diary().clear();
    std::optional<UserToken> first (std::in_place), second (std::in_place);

    get<Orchestra>(); // builds the clock on its way
    Events::RefCountedHolder<Collected>::create();

    first.reset();
    EXPECT_THAT (diary(), ElementsAre ("clock built", "orchestra built"));

    second.reset();
    EXPECT_THAT (
        diary(),
        ElementsAre ("clock built", "orchestra built", "orchestra gone", "clock gone", "garbage gone"));
}

TEST (Singleton, IsBuiltAnewFromItsArgumentsForALaterUser)
{
    for (auto speed : { 3, 4 })
    {
        const UserToken token;
        EXPECT_EQ (get<Clock> (speed).speed, speed);
        EXPECT_EQ (get<Clock> (99).speed, speed) << "the arguments count on first use only";
    }
}

TEST (Singleton, ExistsOnceHoweverManyThreadsComeAndGo)
{
    constexpr auto rounds = 300;
    std::atomic<int> wrong { 0 };

    {
        std::vector<std::jthread> instances;

        for (auto i = 0; i < 4; ++i)
            instances.emplace_back ([&wrong] {
                for (auto round = 0; round < rounds; ++round)
                {
                    const UserToken token;
                    const auto* mine = &get<Counted>();

                    if (Counted::alive != 1 || mine != &get<Counted>())
                        ++wrong;
                }
            });
    }

    EXPECT_EQ (wrong, 0);
    EXPECT_EQ (Counted::alive, 0);
    EXPECT_GE (Counted::built, 1);
}
} // namespace Zn::Singleton
