#pragma once

#include "GUI/Widgets/Control.h"
#include "GUI/Widgets/ParameterEdit.h"

#include <array>
#include <optional>

namespace Zn::GUI
{
/** Two handles on one line, the ends of a range of whole numbers. They stay at least one apart. Thread: message. */
class RangeSlider : public Control
{
public:
    RangeSlider (EditorContext& contextToUse,
                 std::string element,
                 std::shared_ptr<Parameters::Parameter> low,
                 std::shared_ptr<Parameters::Parameter> high);
    ~RangeSlider() override;

    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;

private:
    void paintControl (juce::Graphics& g) override;
    void poll() override;

    juce::Point<float> pointOf (float position) const;
    juce::Rectangle<float> handleOf (std::size_t end) const;

    const std::array<std::shared_ptr<Parameters::Parameter>, 2> ends; // low, high
    std::array<float, 2> drawn {};                                    // normalised
    std::optional<ParameterEdit> edit;
    std::size_t held = 0; // the end in hand
};
} // namespace Zn::GUI
