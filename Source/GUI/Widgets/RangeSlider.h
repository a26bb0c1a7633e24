#pragma once

#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/ParameterEdit.h"

#include <array>
#include <memory>

namespace Zn::GUI
{
/** Two handles on one line, the ends of a range of octaves, which stay at least one apart. Keys move the end that was
    moved last. Thread: message.
*/
class RangeSlider : public Control
{
public:
    RangeSlider (EditorContext& contextToUse,
                 std::string element,
                 std::shared_ptr<Parameters::Parameter> low,
                 std::shared_ptr<Parameters::Parameter> high);
    ~RangeSlider() override;

    /** The lowest and the highest pitch, as in "C1 – B5", or "All". */
    juce::String getShownText() const;

    void resetToDefault();

    TooltipText getTooltipText() const override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;
    void paintOctaves (juce::Graphics& g) const;

    void moveTo (int value);
    void stepBy (int steps);
    bool restoreDrag();
    void endDrag();
    std::size_t endAt (float x) const;
    juce::Point<float> pointOf (int value) const;
    juce::Rectangle<float> handleOf (std::size_t end) const;

    const std::array<std::shared_ptr<Parameters::Parameter>, 2> ends; // low, high
    const juce::Range<int> limits;                                    // lowest, highest
    std::array<int, 2> drawn {};
    std::unique_ptr<ParameterEdit> edit; // while one is dragged
    std::size_t held = 0;                // the end that was moved last
};
} // namespace Zn::GUI
