#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Widgets/EditorContext.h"
#include "GUI/Widgets/GroupHandler.h"

#include <memory>

namespace Zn::GUI
{
/** Two handles on one line, the ends of a range of octaves, which stay at least one apart. Each is a control of its own,
    read as the pitch it stands at; the pointer moves the nearer one. Thread: message.
*/
class RangeSlider : public AssetScheme::Element<>
{
public:
    /** The ends have the names "...Low" and "...High" in the scheme. */
    RangeSlider (EditorContext& contextToUse,
                 const std::string& element,
                 std::shared_ptr<Parameters::Parameter> lowest,
                 std::shared_ptr<Parameters::Parameter> highest);
    ~RangeSlider() override;

    /** The lowest and the highest pitch, as in "C1 – B5", or "All". */
    juce::String getShownText() const;

    /** Opens the text entry of the lower end; Tab goes on to that of the upper one. */
    void typeValues();

    void paint (juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    class End;

    float lineLength() const; // pixels
    juce::Point<float> pointAt (float position) const;
    juce::Rectangle<float> handleOf (const End& end) const;
    bool isNearer (const End& end, float x) const;

    EditorContext& context;
    const std::unique_ptr<End> low, high;
};
} // namespace Zn::GUI
