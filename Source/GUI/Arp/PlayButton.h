#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** Starts and stops the internal clock, with Alt it goes back to the start; where something else is in charge of the
    clock it only shows what that does. Thread: message.
*/
class PlayButton : public Control
{
public:
    explicit PlayButton (EditorContext& contextToUse);

    void mouseDown (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    TooltipText getTooltipText() const override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    /** Nothing while it is disabled. */
    void flip();
    void rewind();

    bool isPlaying() const noexcept { return plays; }

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;

    Sequencer::PlayHead& playHead;
    SVGPainter playIcon { "play.svg" }, stopIcon { "stop.svg" };
    bool plays = false;
};
} // namespace Zn::GUI
