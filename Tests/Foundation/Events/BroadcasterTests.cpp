#include "Foundation/Events/Broadcaster.h"

#include "Foundation/CallbackFunc.h"
#include "Foundation/Events/HasBroadcaster.h"
#include "Foundation/Events/Listener.h"
#include "Foundation/Events/ValueListener.h"

#include <gmock/gmock.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Zn::Events
{
namespace
{
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/** Listeners named by numbers, and who was called in which order. */
struct Audience
{
    void join (int who, CallbackFunc andThen = {})
    {
        seats[static_cast<std::size_t> (who)].emplace (
            *broadcaster,
            chainFunctions ([this, who] { called.push_back (who); }, std::move (andThen)));
    }

    void leave (int who) { seats[static_cast<std::size_t> (who)].reset(); }

    std::vector<int> call()
    {
        called.clear();
        broadcaster->callListeners();
        return called;
    }

    std::unique_ptr<Broadcaster> broadcaster = std::make_unique<Broadcaster>();
    std::array<std::optional<Listener>, 6> seats;
    std::vector<int> called;
};
} // namespace

TEST (Broadcaster, CallsEachListenerOnceTheNewestFirst)
{
    Audience audience;

    for (auto who : { 0, 1, 2 })
        audience.join (who);

    EXPECT_THAT (audience.call(), ElementsAre (2, 1, 0));

    audience.broadcaster->add (*audience.seats[0]); // is there already
    EXPECT_THAT (audience.call(), ElementsAre (2, 1, 0));
}

TEST (Broadcaster, DoesNotCallWhoHasLeftDuringTheCall)
{
    const std::array<std::vector<int>, 5> remaining {
        { { 4, 3, 2, 1 }, { 4, 3, 2, 0 }, { 4, 3, 1, 0 }, { 4, 2, 1, 0 }, { 3, 2, 1, 0 } }
    };

    for (auto leaver : { 0, 1, 3, 4 }) // before and behind the one that is being called
    {
        SCOPED_TRACE (leaver);
        Audience audience;

        for (auto who : { 0, 1, 2, 3, 4 })
            audience.join (who, who == 2 ? CallbackFunc ([&] { audience.leave (leaver); }) : CallbackFunc());

        const auto& afterwards = remaining[static_cast<std::size_t> (leaver)];
        const auto wasCalledBefore = leaver > 2;
        EXPECT_EQ (audience.call(), wasCalledBefore ? std::vector<int> ({ 4, 3, 2, 1, 0 }) : afterwards);
        EXPECT_EQ (audience.call(), afterwards);
        EXPECT_EQ (audience.broadcaster->getNumListeners(), 4);
    }
}

TEST (Broadcaster, CallsWhoComesDuringACallTheNextTime)
{
    Audience audience;
    audience.join (0, [&] { audience.join (1); });

    EXPECT_THAT (audience.call(), ElementsAre (0));
    EXPECT_THAT (audience.call(), ElementsAre (1, 0));
}

TEST (Broadcaster, SurvivesNestedCallsThatEmptyIt)
{
    Audience audience;
    audience.join (0);
    audience.join (1);
    audience.join (2, [&] {
        if (audience.called.size() == 1)
        {
            audience.broadcaster->callListeners();
            audience.leave (0);
            audience.leave (1);
        }
    });

    EXPECT_THAT (audience.call(), ElementsAre (2, 2, 1, 0));
    EXPECT_EQ (audience.broadcaster->getNumListeners(), 1);
}

TEST (Broadcaster, MayBeDestroyedByAListenerOfANestedCall)
{
    Audience audience;
    audience.join (0);
    audience.join (1, [&] {
        if (audience.called.size() == 1)
            audience.broadcaster->callListeners();
        else
            audience.broadcaster.reset();
    });

    audience.broadcaster->callListeners();

    EXPECT_THAT (audience.called, ElementsAre (1, 1));
    EXPECT_FALSE (audience.seats[0]->isAttached());
}

TEST (Listener, FollowsOneBroadcasterAndDetachesWithEitherSide)
{
    auto calls = 0;
    Broadcaster first, second;

    {
        Listener listener (first, [&calls] { ++calls; });
        second.add (listener);
        first.callListeners();
        EXPECT_EQ (calls, 0);
        second.callListeners();
        EXPECT_EQ (calls, 1);

        auto* slot = &listener;
        clearListener (slot);
        EXPECT_EQ (slot, nullptr);
        EXPECT_FALSE (listener.isAttached());
        clearListener (slot);

        second.add (listener);
    }

    EXPECT_EQ (second.getNumListeners(), 0);

    std::optional<Broadcaster> shortLived (std::in_place);
    Listener survivor (*shortLived, [] {});
    shortLived.reset();
    EXPECT_FALSE (survivor.isAttached());
}

TEST (HasBroadcaster, KeepsItsListenersToItselfWhenItIsCopied)
{
    struct Pattern : HasBroadcaster
    {};

    auto calls = 0;
    Pattern original;
    const Listener listener (original, [&calls] { ++calls; });

    auto copy = original;
    copy.callListeners();
    EXPECT_EQ (calls, 0);

    original = Pattern();
    original.callListeners();
    EXPECT_EQ (calls, 1);
}

TEST (ValueListener, CallsOnlyWhenItsOwnValueHasChanged)
{
    struct Screen : HasBroadcaster
    {
        int width = 10, height = 20;
    };

    Screen screen;
    std::vector<int> widths;
    const ValueListener<int> listener (
        screen,
        [&] { return screen.width; },
        [&] (int width) { widths.push_back (width); });

    screen.callListeners();
    screen.height = 30;
    screen.callListeners();
    EXPECT_THAT (widths, IsEmpty());

    screen.width = 11;
    screen.callListeners();
    screen.callListeners();
    EXPECT_THAT (widths, ElementsAre (11));
}
} // namespace Zn::Events
