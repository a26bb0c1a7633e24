#pragma once

#include "GUI/Browser/BrowserGroups.h"
#include "GUI/Browser/BrowserList.h"
#include "GUI/Browser/TextField.h"
#include "GUI/Widgets/Popup.h"

namespace Zn::GUI
{
/** A search field, groups at the left, and a list. What is typed is searched for, the arrow keys choose, Enter takes, Esc
    closes. Thread: message.
*/
class BrowserPopup : public Popup
{
public:
    bool keyPressed (const juce::KeyPress& key) override;

protected:
    /** The prefix is what the names of its parts in the scheme begin with. */
    BrowserPopup (EditorContext& contextToUse,
                  const std::string& prefix,
                  const juce::String& title,
                  BrowserColours colours);

    virtual BrowserList& getList() = 0;

    /** Other words are searched for: how many there are in each group. */
    virtual void showGroups() = 0;

    /** Other words, or another group. */
    virtual void showFound() = 0;

    /** What is marked when other words are searched for. */
    virtual void markFound() { getList().selectRow (0); }

    virtual void escape() { close(); }

    /** Looks at what has been typed. */
    void answerTyping();

    const juce::String& getWords() const noexcept { return words; }

    TextField search;
    BrowserGroups groups;

private:
    bool answerSearchKey (const juce::KeyPress& key);

    juce::String words, groupBeforeSearch;
};
} // namespace Zn::GUI
