#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Pattern/ScaledImage.h"
#include "GUI/Widgets/ControlTexts.h"
#include "GUI/Widgets/TooltipSource.h"

namespace Zn::GUI
{
/** Names the rows beside the roll. A click selects a row, a vertical drag or the wheel makes rows taller.
    Thread: message.
*/
class PitchMap : public AssetScheme::Element<>, public TooltipSource
{
public:
    explicit PitchMap (RollContext& contextToUse);

    /** Called for a click with the right button. */
    std::function<void (int row)> menuAsked;

    const ScaledImage& getPicture() const noexcept { return picture; }

    TooltipText getTooltipText() const override;
    void paint (juce::Graphics& g) override { picture.paint (g, getLocalBounds()); }
    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;

private:
    void refresh();
    void paintRows (juce::Graphics& g) const;
    void paintRow (juce::Graphics& g, int row) const;
    void selectRow (int row, bool adds);

    RollContext& context;
    const ControlText text { controlText (getElement()) };
    ScaledImage picture;
    juce::Font regular, bold, italic;
    float lastY = 0.0f; // of a drag

    Events::Listener namesListener, viewListener;
};
} // namespace Zn::GUI
