#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/ValueControl.h"

#include <vector>

namespace Zn::GUI
{
/** A number that is dragged, turned or typed. Thread: message. */
class NumberField : public ValueControl
{
public:
    struct Options
    {
        bool bare = false;    // large and bold, without a field behind it
        bool hasMenu = false; // with a chevron that opens the menu of the parameter's choices, or of these
        std::vector<int> menuValues {};
    };

    NumberField (EditorContext& contextToUse,
                 std::string element,
                 std::shared_ptr<Parameters::Parameter> parameterToShow,
                 Options optionsToUse);
    NumberField (EditorContext& contextToUse,
                 std::string element,
                 std::shared_ptr<Parameters::Parameter> parameterToShow);

    void schemeChanged() override;

private:
    void paintControl (juce::Graphics& g) override;
    juce::Rectangle<int> valueArea() const override { return getLocalBounds(); }
    void pressed (const juce::MouseEvent& event) override;
    bool showsHover() const override { return ! options.bare; }
    void openMenu();

    const Options options;
    std::optional<SVGPainter> chevron;
    juce::Rectangle<float> textArea, chevronArea;
    juce::Font font;
};
} // namespace Zn::GUI
