#include "Foundation/Events/Listener.h"
#include "Sequencer/PatternController.h"
#include "Support/Documents.h"
#include "Support/StepText.h"

#include <gtest/gtest.h>

namespace Zn::Sequencer
{
namespace
{
using namespace Tests;

/** What a preset and the host's project keep of the patterns. */
struct Document
{
    PatternController& controller;

    void reflect (Reflector& r)
    {
        controller.reflectPatterns (r);

        if (r.isForHostChunk())
            controller.reflectPlayback (r);
    }
};

struct PatternControllerTest : ::testing::Test
{
    PatternController controller;
    std::string calls; // a for the audio side, e for the editor

    Events::Listener audio { controller.getAudioBroadcaster(), [this] { calls += "a"; } };
    Events::Listener editor { controller.getEditorBroadcaster(), [this] { calls += "e"; } };

    const RenderedSlot& slot (std::size_t index) const { return controller.getPatternData()->slots[index]; }

    void loadText (const std::string& text, ReflectorContext context = ReflectorContext::forPresetFile())
    {
        Document document { controller };
        load (document, parsed (text), context);
    }
};

TEST_F (PatternControllerTest, PublishesANewRenderingAndLeavesTheOldOneAlone)
{
    const auto before = controller.getPatternData();
    controller.getSlots()[3].pattern.steps = steps ("x.x.");
    controller.rebuild();

    EXPECT_EQ (asText (slot (3).events.notes), "60 @0+1, 60 @2+1");
    EXPECT_EQ (asText (before->slots[3].events.notes), "");
    EXPECT_EQ (calls, "ae");
}

TEST_F (PatternControllerTest, RendersTheOffBeatsSwungAndSortedByStart)
{
    auto& pattern = controller.getSlots()[0].pattern;
    pattern.steps = { note (62, 0.375, 0.125),
                      note (61, 0.125, 0.125),
                      note (60, 0.0, 0.125),
                      note (59, 0.125, 0.25) };
    controller.setSwing ({ 0.6, 1.0 });
    controller.rebuild();

    EXPECT_EQ (asText (slot (0).events),
               "0+4 notes: 60 @0+0.6, 61 @0.6+0.4, 59 @0.6+1, 62 @1.6+0.4 sequences: @0+4 marks: ");
}

TEST_F (PatternControllerTest, RebuildsOnceForNestedEdits)
{
    {
        const PatternController::Edit outer (controller);
        {
            const PatternController::Edit inner (controller);
            controller.rebuild();
        }
        EXPECT_EQ (calls, "");
    }
    EXPECT_EQ (calls, "ae");
}

TEST_F (PatternControllerTest, HasEightSlotsWhateverIsLoaded)
{
    for (auto& each : controller.getSlots())
        each.pattern.steps = steps ("xxxx");

    auto changes = 0;
    const Events::Listener listener (controller.getSlots()[7].pattern, [&changes] { ++changes; });
    const auto emitter = controller.getSlots()[7].pattern.getEmitter().getPosition();

    loadText (R"({})");
    EXPECT_EQ (slot (7).events.notes.size(), 4u) << "an absent key leaves the slots as they are";

    loadText (R"({"Patterns": [{}, {"Time": {"Bars": []}}]})");
    EXPECT_EQ (slot (0).events.notes.size(), 4u);
    EXPECT_EQ (slot (1).playLength, 0.0);
    EXPECT_EQ (asText (slot (7).events), "0+4 notes:  sequences:  marks: ");
    EXPECT_EQ (changes, 1);
    EXPECT_EQ (controller.getSlots()[7].pattern.getEmitter().getPosition(), emitter);

    auto twelve = nlohmann::json::array();

    for (auto i = 1; i <= 12; ++i)
        twelve.push_back ({ { "Time", { { "Bars", { { { "num", i }, { "denum", 4 } } } } } } });

    load (controller.getSlots()[0], twelve[2]);
    Document document { controller };
    load (document, nlohmann::json { { "Patterns", twelve } });
    EXPECT_EQ (slot (7).playLength, 8.0);
}

TEST_F (PatternControllerTest, EmptiesSlotsThatDoNotPlayOrCannotBeLooped)
{
    for (auto& each : controller.getSlots())
        each.pattern.steps = steps ("xx");

    controller.getSlots()[1].time.setBars ({ { { 1, 5000 } } });
    controller.getSlots()[2].time.setBars ({ { { 0, 4 } } });
    loadText (R"({"Slots": [{"playing": false, "looping": false}, {"looping": false}]})",
              ReflectorContext::forHostChunk());

    EXPECT_EQ (asText (slot (0).events), "0+0 notes:  sequences:  marks: ");
    EXPECT_FALSE (slot (0).playing || slot (0).looping);
    EXPECT_EQ (asText (slot (1).events), "0+0 notes:  sequences:  marks: ");
    EXPECT_FALSE (slot (1).looping);
    EXPECT_EQ (slot (2).playLength, 0.0);
    EXPECT_EQ (slot (3).events.notes.size(), 2u);
}

TEST_F (PatternControllerTest, MarksATurnOfThePatternAsTheSlotsOwn)
{
    auto& pattern = controller.getSlots()[5].pattern;
    pattern.steps = steps ("x");
    controller.rebuild();
    controller.rebuild();

    ASSERT_EQ (slot (5).events.sequences.size(), 1u);
    EXPECT_EQ (slot (5).events.sequences.front().emitter, pattern.getEmitter().getPosition());
}
} // namespace
} // namespace Zn::Sequencer
