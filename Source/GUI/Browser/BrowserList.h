#pragma once

#include "GUI/Browser/BrowserRow.h"
#include "GUI/Framework/AssetScheme/Element.h"

#include <memory>

namespace Zn::GUI
{
/** What a browser offers, a line each; arrows move from line to line, Enter takes one. Has as many lines as are in sight,
    however many there are. Thread: message.
*/
class BrowserList : public AssetScheme::Element<juce::ListBox>, protected juce::ListBoxModel
{
public:
    ~BrowserList() override;

    /** Takes the line that is marked. */
    virtual void activate() = 0;

    /** Marks another line, and has it in sight. */
    void moveSelection (int numLines);

    /** Keys that are for the list while its search field has the focus. */
    bool answerSearchKey (const juce::KeyPress& key);

    int getNumLinesInSight() const;

    void paintOverChildren (juce::Graphics& g) override;

protected:
    /** Whoever derives from it is its model once it has lines, setModel (this), and until its own destructor, which
        calls setModel (nullptr): both lay lines out, which ask it then.
    */
    BrowserList (AssetScheme::Canvas& canvas, std::string element, const juce::String& title);

    virtual std::unique_ptr<BrowserRow> makeRow() = 0;

    /** Stands there when nothing is listed. */
    void setHint (const juce::String& newHint);

    /** Lines are of another height, in pixels. */
    void layOutRows (float heightOfRow);

private:
    void paintListBoxItem (int, juce::Graphics&, int, int, bool) override {}
    juce::Component* refreshComponentForRow (int row, bool isSelected, juce::Component* toUpdate) override;
    void returnKeyPressed (int) override { activate(); }

    juce::String hint;
    juce::Font hintFont;
};
} // namespace Zn::GUI
