#include "GUI/Widgets/Edits.h"

#include <gtest/gtest.h>

namespace Zn::GUI
{
namespace
{
/** Writes down what it is told. */
struct History : Undo::Interface
{
    void begin() override { told.add ("begin"); }
    void markChanged() override { told.add ("changed"); }
    void end (const juce::String& name) override { told.add ("end " + name); }
    void undo() override { told.add ("undo"); }

    juce::StringArray told;
};
} // namespace

TEST (Edits, JoinsTurnsOnOneTargetUntilSomethingElseHappens)
{
    History history;
    Edits edits { history, [&] { history.told.add ("load"); } };
    const auto turn = [] { return true; };
    const int first = 0, second = 0;

    edits.join (&first, "First", turn);
    edits.join (&first, "First", turn);
    edits.join (&second, "Second", turn);
    edits.undo();

    EXPECT_EQ (history.told.joinIntoString (", "),
               "load, begin, changed, changed, end First, load, begin, changed, end Second, load, undo");
}
} // namespace Zn::GUI
