#pragma once

#include "GUI/Browser/BrowserRow.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Presets/PresetCatalogue.h"
#include "GUI/Presets/PresetKind.h"
#include "GUI/Presets/PresetPreviews.h"

namespace Zn::GUI
{
/** How the lines of a list of presets are laid out and coloured, at one size of the editor. */
struct PresetRowStyle
{
    PresetRowStyle (const AssetScheme::Canvas& canvasToUse, const PresetKind& kind);

    const AssetScheme::Canvas& canvas;
    BrowserColours colours;
    juce::Font name, currentName, mark;
    juce::Rectangle<float> row, box, picture, text, starArea;
    SVGPainter star { "star.svg" }, starred { "starred.svg" };
};

/** What the lines of a list ask it, and what they tell it of the hand. */
class PresetRowOwner
{
public:
    virtual ~PresetRowOwner() = default;

    virtual PresetRowStyle& getStyle() = 0;
    virtual const CataloguedPreset* presetAt (int row) const = 0;
    virtual const PresetPreview* previewOf (const CataloguedPreset& preset) = 0;
    virtual bool isCurrent (const CataloguedPreset& preset) const = 0;
    virtual TooltipText tooltipOf (const CataloguedPreset& preset) = 0;

    virtual void rowClicked (int row) = 0;
    virtual void rowDoubleClicked (int row) = 0;
    virtual void starClicked (int row) = 0;
    virtual void menuAsked (int row) = 0;
};

/** One line of a list of presets. Thread: message. */
class PresetRow : public BrowserRow
{
public:
    explicit PresetRow (PresetRowOwner& ownerToAsk);

    /** Lies over the name, for a field to rename it in. */
    juce::Component& getNamePlace() noexcept { return namePlace; }

    TooltipText getTooltipText() const override;

    void paint (juce::Graphics& g) override;
    void resized() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;

private:
    juce::Rectangle<float> starArea() const;
    void paintName (juce::Graphics& g, const CataloguedPreset& preset, bool isCurrent);

    PresetRowOwner& owner;
    juce::Component namePlace;
};
} // namespace Zn::GUI
