#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Presets/PresetCatalogue.h"
#include "GUI/Presets/PresetKind.h"

#include <functional>

namespace Zn::GUI
{
/** The groups of presets at the left of a browser, with how many of them match what is searched for. Thread: message. */
class PresetGroupList : public AssetScheme::Element<juce::ListBox>, private juce::ListBoxModel
{
public:
    PresetGroupList (AssetScheme::Canvas& canvas, const PresetKind& kindToShow, CallbackFunc chosenByHand);
    ~PresetGroupList() override;

    void show (const PresetCatalogue& catalogue, const juce::String& words);

    const PresetGroup& getChosen() const noexcept { return chosen; }

    /** Without telling of it. */
    void choose (const PresetGroup& group);

    void schemeChanged() override;

    int getNumRows() override { return static_cast<int> (lines.size()); }
    juce::String getNameForRow (int row) override;

private:
    struct Line
    {
        PresetGroup group;
        juce::String text;
        int count = 0;
    };

    void paintListBoxItem (int row, juce::Graphics& g, int width, int height, bool isSelected) override;
    void paintLine (juce::Graphics& g, const Line& line, juce::Rectangle<float> area, bool isChosen);
    void selectedRowsChanged (int row) override;
    void markChosen();

    const std::string_view accent, wash; // colours
    const CallbackFunc onChosen;

    std::vector<Line> lines;
    PresetGroup chosen;
    bool marksItself = false;

    SVGPainter star { "starred.svg" };
    juce::Font font;
    juce::Rectangle<float> box, textArea, countArea;
};
} // namespace Zn::GUI
