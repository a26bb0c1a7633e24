#pragma once

#include "GUI/Browser/BrowserList.h"
#include "GUI/Presets/PresetActions.h"
#include "GUI/Presets/PresetRow.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** The presets of a browser, a line each: the first pattern in miniature, the name, whether it brings a sound, its star.

    What it shows outlives it. Thread: message.
*/
class PresetList : public BrowserList, private PresetRowOwner
{
public:
    PresetList (PresetActions& actionsToUse, PresetPreviews& previewsToShow);
    ~PresetList() override;

    /** The places of what is listed in a catalogue, which stays as it is until the next call. The hint stands there
        when nothing is listed.
    */
    void show (const PresetCatalogue& newCatalogue, std::vector<int> newFound, const juce::String& newHint);

    /** The file that is loaded: its line is coloured. */
    void setCurrent (const std::optional<juce::File>& file);

    /** Marks its line, and has it in sight. */
    void selectFile (const juce::File& file);

    /** Loads what is marked; if that is loaded already, the browser is no longer needed and closes. */
    void activate() override;

    /** Null behind the end. */
    const CataloguedPreset* presetAt (int row) const override;
    int getNumRows() override { return static_cast<int> (found.size()); }

    bool keyPressed (const juce::KeyPress& key) override;
    void schemeChanged() override;

private:
    std::unique_ptr<BrowserRow> makeRow() override;
    juce::String getNameForRow (int row) override;

    PresetRowStyle& getStyle() override { return *style; }
    const PresetPreview* previewOf (const CataloguedPreset& preset) override;
    bool isCurrent (const CataloguedPreset& preset) const override { return preset.file == current; }
    TooltipText tooltipOf (const CataloguedPreset& preset) override;
    void rowClicked (int row) override;
    void rowDoubleClicked (int row) override;
    void starClicked (int row) override;
    void menuAsked (int row) override;

    void toggleFavourite (const CataloguedPreset& preset);
    void rename (int row);
    void remove (const juce::File& file);

    PresetActions& actions;
    PresetPreviews& previews;

    const PresetCatalogue* catalogue = nullptr;
    std::vector<int> found;
    juce::File current;
    std::unique_ptr<PresetRowStyle> style;
};
} // namespace Zn::GUI
