#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/RollContext.h"

namespace Zn::GUI
{
/** Shows which of the rows are seen, at the roll's edge; to be dragged, too. Thread: message. */
class RollScrollBar : public AssetScheme::Element<>
{
public:
    explicit RollScrollBar (RollContext& contextToUse);

    void paint (juce::Graphics& g) override;
    void mouseEnter (const juce::MouseEvent&) override { repaint(); }
    void mouseExit (const juce::MouseEvent&) override { repaint(); }
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent&) override { repaint(); }
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;

private:
    juce::Rectangle<float> thumb() const;

    RollContext& context;
    double grabbedRow = 0.0, grabbedY = 0.0;
    juce::Rectangle<float> shownThumb;
    Events::Listener listener;
};
} // namespace Zn::GUI
