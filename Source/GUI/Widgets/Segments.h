#pragma once

#include "GUI/Widgets/Caption.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/ValueControl.h"

#include <deque>
#include <string>
#include <vector>

namespace Zn::GUI
{
/** A row of choices, one of which is lit. One stop for the Tab key; arrows move inside. Thread: message. */
class Segments : public ValueControl
{
public:
    struct Item
    {
        juce::String text {};
        juce::String icon {};   // a file
        int value = 0;          // of the parameter, as getInt() tells
        std::string element {}; // in the scheme, for its place and its texts; else the row is shared out
    };

    struct Options
    {
        std::vector<Item> items {};   // empty: the parameter's own choices
        std::string_view accent = {}; // a colour with a "Deep" one; none: a choice between equals
    };

    Segments (EditorContext& contextToUse,
              std::string element,
              std::shared_ptr<Parameters::Parameter> parameterToShow,
              Options optionsToUse);
    Segments (EditorContext& contextToUse,
              std::string element,
              std::shared_ptr<Parameters::Parameter> parameterToShow);
    ~Segments() override;

    void schemeChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    struct Segment;

    void paintControl (juce::Graphics& g) override;
    void valueChanged() override;
    void pressed (const juce::MouseEvent&) override {}
    int upwards() const override { return -1; }
    void enter() override {}
    void moveBy (int distance) override;
    void paintSegment (juce::Graphics& g, Segment& segment);
    void choose (int value);

    std::vector<Item> itemsOf (const std::vector<Item>& given) const;

    const std::string accent;
    std::deque<Segment> segments;
};
} // namespace Zn::GUI
