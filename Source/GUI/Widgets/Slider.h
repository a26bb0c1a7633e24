#pragma once

#include "GUI/Widgets/ValueControl.h"

namespace Zn::GUI
{
/** A handle on a line that follows the pointer: across with the middle marked for a value with a sign, or upright as
    a fader. Its value is shown elsewhere. Thread: message.
*/
class Slider : public ValueControl
{
public:
    enum class Direction
    {
        across,
        upright,
        longer // whichever way it has more room, for one that lies elsewhere while the sound is folded
    };

    struct Options
    {
        Direction direction = Direction::across;
        std::string_view accent = "Pattern"; // a colour
        bool fromMiddle = false;             // the line is lit from there
        bool showsReadout = false;           // beside the pointer, while there is no other place for it
    };

    Slider (EditorContext& contextToUse,
            std::string element,
            std::shared_ptr<Parameters::Parameter> parameterToShow,
            Options optionsToUse);

    void schemeChanged() override;

private:
    void paintControl (juce::Graphics& g) override;
    void valueChanged() override;
    float proportionOf (juce::Point<float> movement) const override;
    juce::String getReadout() const override { return options.showsReadout ? shownText() : juce::String(); }

    bool isAcross() const noexcept;
    juce::Line<float> track() const;
    juce::Rectangle<float> handle() const;

    const Options options;
    juce::Path whole, lit; // of the line
};
} // namespace Zn::GUI
