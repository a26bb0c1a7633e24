#include "Presets/Undo/Manager.h"

#include "Foundation/Events/Listener.h"
#include "Presets/Base.h"
#include "Presets/Undo/Holder.h"
#include "Presets/Undo/PresetLoads.h"
#include "Presets/Undo/Transaction.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace Zn::Undo
{
namespace
{
/** A plug-in with one number, which refuses to load 13. */
struct Notebook : Presets::Base
{
    int number = 0;

protected:
    void reflectMembers (Reflector& r) override
    {
        r.add ("number", number);

        if (r.isLoading() && number == 13)
            throw std::out_of_range ("bad luck");
    }
};

struct Undo : ::testing::Test
{
    Notebook notebook;
    Manager manager { notebook };
    int numCalls = 0;
    Events::Listener listener { manager, [this] { ++numCalls; } };

    void write (int number)
    {
        Transaction edit (manager, juce::String (number));
        notebook.number = number;
        edit.markChanged();
    }
};

/** The rules written down plainly. */
struct LiteralHistory
{
    std::vector<int> numbers { 0 };
    std::size_t index = 0;
    int depth = 0;
    bool changed = false;

    void end (int number)
    {
        depth = depth < 2 ? 0 : depth - 1;

        if (depth > 0 || ! changed)
            return;

        numbers.resize (index + 1);
        numbers.push_back (number);
        ++index;
        changed = false;
    }

    bool canUndo() const { return index > 0; }
    bool canRedo() const { return index + 1 < numbers.size(); }
};
} // namespace

TEST_F (Undo, GoesBackAndForthHoweverEditsAreNested)
{
    LiteralHistory literal;
    juce::Random random (1);

    for (auto i = 0; i < 3000; ++i)
    {
        const auto kind = random.nextInt (14);

        if (kind < 3)
        {
            manager.begin();
            ++literal.depth;
        }
        else if (kind < 6)
        {
            notebook.number = 100 + i;
            manager.markChanged();
            literal.changed = true;
        }
        else if (kind < 10)
        {
            manager.end ("Edit");
            literal.end (notebook.number);
        }
        else if (kind < 12)
        {
            manager.undo();
            literal.index -= literal.canUndo() ? 1u : 0u;
        }
        else
        {
            manager.redo();
            literal.index += literal.canRedo() ? 1u : 0u;
        }

        if (! literal.changed)
        {
            ASSERT_EQ (notebook.number, literal.numbers[literal.index]) << "operation " << i;
        }

        ASSERT_EQ (manager.canUndo(), literal.canUndo()) << "operation " << i;
        ASSERT_EQ (manager.canRedo(), literal.canRedo()) << "operation " << i;
    }
}

TEST_F (Undo, NamesAStepAfterTheOutermostEdit)
{
    {
        Transaction outer (manager, "Paste");
        write (1);
        write (2);
        EXPECT_EQ (manager.getCurrentName(), "Initial");
    }

    EXPECT_EQ (manager.getCurrentName(), "Paste");
    EXPECT_EQ (numCalls, 1);
    manager.undo();
    EXPECT_EQ (notebook.number, 0);
    EXPECT_FALSE (manager.canUndo());
}

TEST_F (Undo, BeginsAnewForAnotherProject)
{
    write (1);
    manager.undo();
    notebook.number = 5;
    manager.begin(); // by a drag that the load interrupts
    manager.markChanged();
    manager.awaitRestart();
    write (4);
    notebook.number = 5;
    EXPECT_EQ (manager.getCurrentName(), "Initial");
    manager.restart();
    EXPECT_FALSE (manager.canUndo() || manager.canRedo());
    EXPECT_EQ (numCalls, 3);

    write (6);
    manager.undo();
    EXPECT_EQ (notebook.number, 5);
}

TEST_F (Undo, ShowsItsButtonsWhatTheyCanDo)
{
    const auto undo = manager.createUndoParam();
    const auto redo = manager.createRedoParam();
    const auto shown = [&] { return std::pair { undo->getNormalised(), redo->getNormalised() }; };

    EXPECT_EQ (shown(), std::pair (0.0f, 0.0f));
    write (1);
    EXPECT_EQ (shown(), std::pair (1.0f, 0.0f));
    undo->setBool (false);
    EXPECT_EQ (notebook.number, 1);
    undo->setBool (true);
    EXPECT_EQ (shown(), std::pair (0.0f, 1.0f));
    EXPECT_EQ (notebook.number, 0);
    redo->setFromText ("On");
    EXPECT_EQ (notebook.number, 1);
    EXPECT_EQ (numCalls, 3);
}

TEST_F (Undo, GoesOnPastAStateThatDoesNotLoad)
{
    write (12);
    write (13);
    write (14);
    manager.undo();
    manager.undo();
    EXPECT_EQ (notebook.number, 12);
    manager.redo();
    manager.redo();
    EXPECT_EQ (notebook.number, 14);
}

TEST_F (Undo, TakesNothingForAnEditThatALoadSetsOff)
{
    write (1);
    write (2);
    const Events::Listener widget { notebook.loaded, [this] {
                                       write (notebook.number);
                                       manager.undo();
                                   } };
    manager.undo();
    EXPECT_EQ (notebook.number, 1);
    EXPECT_TRUE (manager.canUndo() && manager.canRedo());
}

TEST_F (Undo, TakesALoadedPresetForOneEdit)
{
    const PresetLoads loads (manager, notebook);
    auto document = notebook.createDocument (ReflectorContext::forPresetFile());
    document["number"] = 7;
    document["name"] = "Seven";
    notebook.applyDocument (document, ReflectorContext::forPresetFile());
    EXPECT_EQ (manager.getCurrentName(), "Load Seven");

    document["number"] = 13;
    EXPECT_THROW (notebook.applyDocument (document, ReflectorContext::forPresetFile()), std::out_of_range);
    write (8);
    manager.undo();
    manager.undo();
    EXPECT_EQ (notebook.number, 7);
    manager.undo();
    EXPECT_EQ (std::pair (notebook.number, notebook.getName()), std::pair (0, juce::String ("Init")));
    EXPECT_FALSE (manager.canUndo());
}
} // namespace Zn::Undo
