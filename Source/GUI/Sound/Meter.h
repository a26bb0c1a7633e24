#pragma once

#include "GUI/Sound/MeterBallistics.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** The level of the left output. As long as it can be seen the audio thread works the level out; its top is red
    once the level has gone over 0 dB, until it is clicked; as long as it is, Tab stops here. Thread: message.
*/
class Meter : public Control
{
public:
    Meter (EditorContext& contextToUse, std::string element);
    ~Meter() override;

    TooltipText getTooltipText() const override;
    void schemeChanged() override;
    void visibilityChanged() override { listenWhileSeen(); }
    void mouseDown (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    const MeterBallistics& getShown() const noexcept { return shown; }
    juce::String getLevelText() const;

    static constexpr float lowestDecibels = -60.0f, highestDecibels = 3.0f;

private:
    /** In whole pixels: what is not another is not painted again. */
    struct Drawing
    {
        int levelTop = 0, peakTop = 0;
        bool isRed = false;

        bool operator== (const Drawing&) const = default;
    };

    void paintControl (juce::Graphics& g) override;
    void poll() override;
    bool showsHover() const override { return false; }
    void listenWhileSeen();
    bool isSeen() const;
    int topOf (float decibels) const;
    void redraw();
    void clearRed();

    MeterBallistics shown;
    MeterBallistics::Settings settings;
    Drawing drawing;
    juce::Path frame;
    juce::FillType fill;
    double lastPoll = 0.0, lastAsked = 0.0; // milliseconds
    bool isMinimised = false, isListening = false;
};
} // namespace Zn::GUI
