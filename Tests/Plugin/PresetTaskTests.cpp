#include "Plugin/Bases/PresetTask.h"

#include "Foundation/Singleton.h"

#include "Support/MessageLoop.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>

namespace Zn::Audio::Plugin
{
namespace
{
const int first = 0, second = 0; // owners
} // namespace

TEST (PresetTask, RunsTheJobsOfAnOwnerInOrderAndNeverInsideOneAnother)
{
    const Singleton::UserToken user;
    auto& task = PresetTask::getInstance();
    std::string diary;

    task.add (&first, [&] {
        diary += "a(";
        task.flush (&first);
        diary += ')';
        throw std::runtime_error ("heard by nobody");
    });
    task.add (&second, [&] { diary += 'x'; });
    task.add (&first, [&] { diary += 'b'; });

    task.flush (&first);
    EXPECT_EQ (diary, "a()b");

    task.remove (&second);
    task.flush (&second);
    EXPECT_EQ (diary, "a()b");
}

TEST (PresetTask, RunsWhatAnotherThreadAddsAsSoonAsTheMessageThreadIsFree)
{
    const Singleton::UserToken user;
    auto& task = PresetTask::getInstance();
    auto ranOnMessageThread = false;

    std::thread ([&] {
        task.add (&first, [&] { ranOnMessageThread = juce::MessageManager::existsAndIsCurrentThread(); });
    }).join();

    EXPECT_TRUE (Zn::Tests::runMessageLoopUntil ([&] { return ranOnMessageThread; }));
}

TEST (PresetTask, WaitsForARunningJobWhenItsOwnerLeavesOnAnotherThread)
{
    const Singleton::UserToken user;
    auto& task = PresetTask::getInstance();
    std::atomic<bool> isRunning { false }, hasEnded { false };

    task.add (&first, [&] {
        isRunning = true;
        std::this_thread::sleep_for (std::chrono::milliseconds (50));
        hasEnded = true;
        task.remove (&first); // inside it there is nothing to wait for
    });

    std::jthread owner ([&] {
        while (! isRunning)
            std::this_thread::yield();

        task.remove (&first);
        EXPECT_TRUE (hasEnded);
    });

    task.flush (&first);
}
} // namespace Zn::Audio::Plugin
