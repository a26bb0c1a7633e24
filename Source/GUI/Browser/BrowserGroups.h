#pragma once

#include "Foundation/CallbackFunc.h"
#include "GUI/Browser/BrowserColours.h"
#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Framework/SVGPainter.h"

#include <vector>

namespace Zn::GUI
{
/** The groups at the left of a browser, with how many in each match what is searched for. Thread: message. */
class BrowserGroups : public AssetScheme::Element<juce::ListBox>, private juce::ListBoxModel
{
public:
    struct Line
    {
        juce::String id {}; // no two are the same; empty: everything
        juce::String text {};
        int count = 0;
        bool hasStar = false;
        bool endsBlock = false; // a hairline parts it from what follows
    };

    /** The prefix is what the names of its parts in the scheme begin with. */
    BrowserGroups (AssetScheme::Canvas& canvas,
                   const std::string& prefixToUse,
                   BrowserColours coloursToUse,
                   CallbackFunc chosenByHand);
    ~BrowserGroups() override;

    /** What was chosen stays so; if it is gone, everything is. */
    void show (std::vector<Line> newLines);

    /** The id of a line. */
    const juce::String& getChosen() const noexcept { return chosen; }

    /** Without telling of it. */
    void choose (const juce::String& id);

    void schemeChanged() override;

    int getNumRows() override { return static_cast<int> (lines.size()); }
    juce::String getNameForRow (int row) override;

private:
    void paintListBoxItem (int row, juce::Graphics& g, int width, int height, bool isSelected) override;
    void paintLine (juce::Graphics& g, const Line& line, juce::Rectangle<float> area, bool isChosen);
    void selectedRowsChanged (int row) override;
    void markChosen();

    const std::string prefix;
    const BrowserColours colours;
    const CallbackFunc onChosen;

    std::vector<Line> lines;
    juce::String chosen;
    bool marksItself = false;

    SVGPainter star { "starred.svg" };
    juce::Font font;
    juce::Rectangle<float> box, textArea, countArea;
};
} // namespace Zn::GUI
