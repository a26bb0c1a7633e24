#include "GUI/Browser/BrowserPopup.h"

#include <utility>

namespace Zn::GUI
{
BrowserPopup::BrowserPopup (EditorContext& contextToUse,
                            const std::string& prefix,
                            const juce::String& title,
                            BrowserColours colours)
    : Popup (contextToUse, prefix + "Popup", title)
    , search (context.canvas, prefix + "Search", "search.svg")
    , groups (context.canvas, prefix, colours, [this] {
        groupBeforeSearch = groups.getChosen();
        showFound();
    })
{
    search.onKey = [this] (const juce::KeyPress& key) { return answerSearchKey (key); };
    addAndMakeVisible (search);
    addAndMakeVisible (groups);
}

/** Words are searched for everywhere at first; whoever then chooses a group means that. */
void BrowserPopup::answerTyping()
{
    const auto before = std::exchange (words, search.getText().trim());

    if (words == before)
        return;

    if (before.isEmpty())
    {
        groupBeforeSearch = groups.getChosen();
        groups.choose ({});
    }
    else if (words.isEmpty())
    {
        groups.choose (groupBeforeSearch);
    }

    showGroups();
    showFound();
    markFound();
}

bool BrowserPopup::answerSearchKey (const juce::KeyPress& key)
{
    answerTyping(); // of what has been typed since the last look

    if (key == juce::KeyPress::escapeKey)
        return escape(), true;

    return getList().answerSearchKey (key);
}

bool BrowserPopup::keyPressed (const juce::KeyPress& key)
{
    return key == juce::KeyPress::escapeKey && (escape(), true);
}
} // namespace Zn::GUI
