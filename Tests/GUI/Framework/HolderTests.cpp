#include "Foundation/Singleton.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/Element.h"

#include <gtest/gtest.h>

namespace Zn::GUI::AssetScheme
{
namespace
{
using juce::Rectangle;

/** Counts how often it was told. */
struct Part : Element<>
{
    using Element<>::Element;
    void schemeChanged() override { ++numChanges; }
    int numChanges = 0;
};

struct AssetSchemeHolder : testing::Test
{
    AssetSchemeHolder() { root.setSize (1000, 1000); }

    Singleton::UserToken singletonsStay;
    juce::Component root;
    Canvas canvas { root };
};
} // namespace

TEST_F (AssetSchemeHolder, LaysOutWhateverTheOrderAndAgainWithEachSize)
{
    Part editing { canvas, "ArpEditing" }, roll { canvas, "PianoRoll" }, bar { canvas, "RollScrollBar" };
    juce::Component plain; // between two of the scheme's
    plain.setBounds (10, 20, 500, 500);

    roll.addChildComponent (bar);
    editing.addChildComponent (plain);
    plain.addChildComponent (roll);
    EXPECT_EQ (bar.numChanges, 0) << "lies on no editor yet";

    root.addChildComponent (editing);
    EXPECT_EQ (editing.getBounds(), Rectangle<int> (0, 243, 1000, 402));
    EXPECT_EQ (roll.getBounds(), Rectangle<int> (37, 4, 953, 304));
    EXPECT_EQ (bar.getBounds(), Rectangle<int> (947, 4, 4, 296));

    for (const auto width : { 800, 1100, 1650, 2200 })
    {
        root.setSize (width, juce::roundToInt (width * 760.0 / 1100.0));

        EXPECT_EQ (root.getLocalArea (&editing, editing.getLocalBounds()), canvas.boundsOf ("ArpEditing"));
        EXPECT_EQ (root.getLocalArea (&roll, roll.getLocalBounds()), canvas.boundsOf ("PianoRoll"));
        EXPECT_EQ (root.getLocalArea (&bar, bar.getLocalBounds()), canvas.boundsOf ("RollScrollBar"));
    }

    const auto changes = bar.numChanges;
    root.setTopLeftPosition (5, 5);
    EXPECT_EQ (bar.numChanges, changes);
}

TEST_F (AssetSchemeHolder, FollowsTheFoldAndItsOwnName)
{
    Part roll { canvas, "PianoRoll" }, place { canvas, "Transpose" };
    root.addChildComponent (roll);
    root.addChildComponent (place);

    canvas.setFold (Fold::folded);
    EXPECT_EQ (roll.getHeight(), 551);

    place.setElement ("Bpm");
    EXPECT_EQ (place.getBounds(), canvas.boundsOf ("Bpm"));
}

TEST_F (AssetSchemeHolder, HidesWhatTheSchemeDoesNotHaveAndNothingElse)
{
    Part part { canvas, "Nowhere" };
    root.addAndMakeVisible (part);
    EXPECT_FALSE (part.isVisible());
    EXPECT_TRUE (part.getBounds().isEmpty());

    part.setElement ("Undo");
    EXPECT_TRUE (part.isVisible());

    part.setVisible (false);
    part.setElement ("Nowhere");
    part.setElement ("Undo");
    EXPECT_FALSE (part.isVisible()) << "was hidden by its owner";
}

TEST_F (AssetSchemeHolder, KeepsPopupsAtTheirControlAndInsideTheEditor)
{
    Part menu { canvas, "ControlMenu" }, items { canvas, "ControlMenuItems" };
    root.addChildComponent (menu);
    menu.addChildComponent (items);

    menu.placeBeside ({ 100, 200, 30, 20 });
    EXPECT_EQ (menu.getBounds(), Rectangle<int> (100, 220, 190, 262));
    EXPECT_EQ (items.getPosition(), (juce::Point<int> { 0, 60 }));

    menu.placeBeside ({ 990, 950, 10, 20 });
    EXPECT_EQ (menu.getBounds(), Rectangle<int> (810, 688, 190, 262));
}

TEST_F (AssetSchemeHolder, GivesEachEditorItsOwnSize)
{
    juce::Component otherRoot;
    otherRoot.setSize (2000, 1382);
    Canvas otherCanvas { otherRoot };

    Part here { canvas, "Header" }, there { otherCanvas, "Header" };
    root.addChildComponent (here);
    otherRoot.addChildComponent (there);

    EXPECT_EQ (here.getWidth(), 1000);
    EXPECT_EQ (there.getWidth(), 2000);
}
} // namespace Zn::GUI::AssetScheme
