#include "Plugin/Bases/PresetCacher.h"

#include "Foundation/Events/SharedTimer.h"

#include "Plugin/HostStateFixture.h"

#include <gtest/gtest.h>

#include <new>
#include <thread>
#include <vector>

namespace Zn::Audio::Plugin
{
namespace
{
void runTimerFor (int milliseconds)
{
    for (auto elapsed = 0; elapsed < milliseconds; elapsed += Events::SharedTimer::intervalMilliseconds)
        Events::SharedTimer::getInstance().timerCallback();
}
} // namespace

TEST (PresetCacher, MakesADocumentTwiceASecondAtMostAndOnlyAfterAChange)
{
    const Singleton::UserToken user;
    ToyProcessor processor;
    auto made = 0;
    PresetCacher cacher (processor, [&] { return nlohmann::json { { "made", ++made } }; });

    runTimerFor (2000);
    EXPECT_EQ (made, 1);

    for (auto* parameter : processor.getParameters())
        parameter->setValueNotifyingHost (0.75f);

    runTimerFor (400);
    EXPECT_EQ (made, 1);
    runTimerFor (2000);
    EXPECT_EQ (made, 2);
    EXPECT_EQ (cacher.getNewest().at ("made"), 2);
}

TEST (PresetCacher, TriesAgainWhenADocumentCannotBeMade)
{
    const Singleton::UserToken user;
    ToyProcessor processor;
    auto made = 0;
    PresetCacher cacher (processor, [&] {
        if (++made == 2)
            throw std::bad_alloc();

        return nlohmann::json { { "made", made } };
    });

    cacher.expect ("{}");
    cacher.expectationMet();
    runTimerFor (500);
    EXPECT_EQ (cacher.getNewest().at ("made"), 1);
    runTimerFor (500);
    EXPECT_EQ (cacher.getNewest().at ("made"), 3);
}

TEST (PresetCacher, LaysWhatIsToBeLoadedOverItsDocumentUntilThereIsOneThatHasIt)
{
    const Singleton::UserToken user;
    ToyProcessor processor;
    nlohmann::json live { { "a", { { "x", 1 }, { "y", 1 } } }, { "b", 1 } };
    PresetCacher cacher (processor, [&] { return live; });

    cacher.expect (R"({ "a": { "x": 2 } })");
    cacher.expect ("no document at all");
    cacher.expect (R"({ "b": 2 })");
    const nlohmann::json merged { { "a", { { "x", 2 }, { "y", 1 } } }, { "b", 2 } };
    EXPECT_EQ (cacher.getNewest(), merged);

    cacher.refresh(); // the loads still wait
    EXPECT_EQ (cacher.getNewest(), merged);

    for (auto i = 0; i < 3; ++i)
        cacher.expectationMet();

    live = { { "b", 3 } };
    EXPECT_EQ (cacher.getNewest(), merged);
    runTimerFor (500);
    EXPECT_EQ (cacher.getNewest(), live);
}
} // namespace Zn::Audio::Plugin
