#include "GUI/Support/OpenEditor.h"
#include "GUI/Widgets/Control.h"

#include <gtest/gtest.h>

#include <set>

namespace Zn::GUI
{
namespace
{
const juce::String& manual()
{
    static const auto text = juce::File (VORNEL_MANUAL).loadFileAsString();
    return text;
}

/** One row of a table of the manual, up to what it says about the parameter. */
juce::String rowOf (const juce::AudioProcessorParameterWithID& parameter)
{
    const auto textAt = [&parameter] (float normalised) { return parameter.getText (normalised, 64); };
    return "| `" + parameter.getParameterID() + "` | " + textAt (0.0f) + " | " + textAt (1.0f) + " | "
           + textAt (parameter.getDefaultValue()) + " |";
}

/** The manual tells of the first of oscillators and patterns, and how many there are. */
juce::String titleOfFirst (const juce::String& title)
{
    return title.replaceCharacters ("2345678", "1111111");
}

/** The name of what has a tooltip, whatever state that tells; nothing for the lines of a list. */
juce::String titleOf (const juce::Component& part)
{
    const auto* source = dynamic_cast<const TooltipSource*> (&part);

    if (source == nullptr || source->getTooltipText().title.isEmpty())
        return {};

    if (const auto* control = dynamic_cast<const Control*> (&part))
        return control->getText().title;

    const auto text = controlText (part.getComponentID().toStdString());
    return text.help.isNotEmpty() ? text.title : juce::String();
}

void collectTitles (const juce::Component& part, std::set<juce::String>& titles)
{
    if (const auto title = titleOfFirst (titleOf (part)); title.isNotEmpty())
        titles.insert (title);

    for (const auto* child : part.getChildren())
        collectTitles (*child, titles);
}
} // namespace

TEST (Manual, HasEveryParameterWithItsRangeAndDefault)
{
    Tests::OpenEditor editor;
    juce::String missing;

    for (const auto* parameter : editor.processor.getParameters())
        if (const auto row = rowOf (dynamic_cast<const juce::AudioProcessorParameterWithID&> (*parameter));
            ! manual().contains (row))
            missing << row << "\n";

    EXPECT_EQ (missing, "") << "Docs/manual.md, \"Parameters\", has to have these rows.";
}

TEST (Manual, TellsOfEveryControlByItsName)
{
    Tests::OpenEditor editor;
    std::set<juce::String> titles;
    const auto& actions = editor.page.getContext().actions;

    for (const auto& open : { actions.searchPresets, actions.saveAs, actions.settings, actions.help })
    {
        open();
        collectTitles (editor.page, titles);
    }

    juce::String missing;

    for (const auto& title : titles)
        if (! manual().contains ("| **" + title + "** |"))
            missing << "| **" << title << "** |\n";

    EXPECT_EQ (missing, "") << "Docs/manual.md has to have rows that begin so.";
}
} // namespace Zn::GUI
