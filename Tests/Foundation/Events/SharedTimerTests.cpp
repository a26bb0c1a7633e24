#include "Foundation/Events/SharedTimer.h"

#include "Foundation/Events/TimerCallback.h"
#include "Foundation/Events/UpdateTimer.h"
#include "Foundation/Singleton.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

namespace Zn::Events
{
namespace
{
void tick()
{
    SharedTimer::getInstance().timerCallback();
}
} // namespace

TEST (SharedTimer, LetsCallbacksComeAndGoDuringATick)
{
    const Singleton::UserToken user;
    std::string calls;
    std::unique_ptr<TimerCallback> leaving, victim, newcomer;

    leaving = std::make_unique<TimerCallback> ([&] {
        calls += 'l';
        newcomer = std::make_unique<TimerCallback> ([&] { calls += 'n'; });
        victim.reset();
        leaving.reset();
    });
    victim = std::make_unique<TimerCallback> ([&] { calls += 'v'; });
    const TimerCallback last ([&] { calls += 'z'; });

    tick();
    EXPECT_EQ (calls, "lz");

    tick();
    EXPECT_EQ (calls, "lzzn");
}

TEST (SharedTimer, DoesNotNest)
{
    const Singleton::UserToken user;
    auto calls = 0;
    const TimerCallback nesting ([&] {
        ++calls;
        tick(); // as a modal loop would
    });

    tick();
    EXPECT_EQ (calls, 1);
}

TEST (SharedTimer, GoesOnToTheNextCallbackWhenOneThrows)
{
    const Singleton::UserToken user;
    auto calls = 0;
    const TimerCallback throwing ([] { throw std::runtime_error ("no"); });
    const TimerCallback next ([&] { ++calls; });

    EXPECT_NO_THROW (tick());
    tick();
    EXPECT_EQ (calls, 2);
}

TEST (SharedTimer, TicksAsOftenWithTheFramesOfAnyScreen)
{
    const Singleton::UserToken user;
    auto calls = 0;
    const TimerCallback counting ([&] { ++calls; });
    tick();

    for (const auto hertz : { 50u, 60u, 100u, 144u, 240u })
    {
        const auto start = juce::Time::getMillisecondCounter() + 1000;
        calls = 0;

        for (auto frame = 1u; frame <= 10 * hertz; ++frame)
            SharedTimer::getInstance().frame (start + 1000 * frame / hertz);

        EXPECT_GE (calls, 245) << hertz;
        EXPECT_LE (calls, 345) << hertz;
    }
}

TEST (UpdateTimer, KeepsItsIntervalOverManyTicksAndStartsItAnewWhenSwitchedOn)
{
    const Singleton::UserToken user;
    auto calls = 0;
    constexpr auto ticksPerCall = 1.6;
    UpdateTimer timer (static_cast<int> (ticksPerCall * SharedTimer::intervalMilliseconds), [&] { ++calls; });

    const auto run = [] (int numTicks) {
        for (auto i = 0; i < numTicks; ++i)
            tick();
    };

    run (160);
    EXPECT_NEAR (calls, 100, 1);

    timer.setActive (false);
    run (50);
    timer.setActive (true);
    calls = 0;
    tick();
    EXPECT_EQ (calls, 0);

    tick();
    EXPECT_EQ (calls, 1);
}

TEST (SharedTimer, OutlivesATickInWhichTheLastUserLeaves)
{
    std::optional<Singleton::UserToken> user { std::in_place };
    std::optional<TimerCallback> callback;
    callback.emplace ([&] {
        auto& lastUser = user; // what is captured goes with the callback
        callback.reset();
        lastUser.reset();
    });

    SharedTimer::getInstance().timerCallback(); // must not return into a deleted object
    EXPECT_FALSE (user.has_value());
}

TEST (SharedTimer, OutlivesATickThatAnotherThreadsLastUserDoesNotWaitFor)
{
    std::optional<Singleton::UserToken> user { std::in_place };
    auto& timer = SharedTimer::getInstance();

    std::thread ([&] { user.reset(); }).join();

    // The message thread had chosen this timer already; it is still there, and has nobody to call.
    timer.timerCallback();
}
} // namespace Zn::Events
