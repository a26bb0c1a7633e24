#pragma once

#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** Tells that another slot plays than the one that is shown. A click opens that. Thread: message. */
class PlayingElsewhere : public Control
{
public:
    explicit PlayingElsewhere (EditorContext& contextToUse);

    void schemeChanged() override;
    void mouseDown (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;
    void open();
    void tellWhich();

    int playing = -1; // 0..7; -1: the one that is shown, or none
    juce::String text;
    juce::Font font;
    float textWidth = 0.0f;
    juce::Path triangle;
};
} // namespace Zn::GUI
