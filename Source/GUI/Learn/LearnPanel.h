#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Card.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** Lists what is learned; each line can be forgotten, or all. Thread: message. */
class LearnPanel : public AssetScheme::Element<>
{
public:
    struct Line
    {
        Learning::Target target;
        juce::String key, title;

        bool operator== (const Line&) const = default;
    };

    explicit LearnPanel (EditorContext& contextToUse);
    ~LearnPanel() override;

    void setLines (std::vector<Line> newLines);

    /** The line under the pointer, none without one. */
    std::function<void (std::optional<Learning::Target>)> onHover;

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    struct Row;

    void layOutRows();

    EditorContext& context;
    std::vector<Line> lines;
    std::vector<std::unique_ptr<Row>> rows;
    juce::Component list; // as high as its rows
    AssetScheme::Element<juce::Viewport> view;
    Button forgetAll;
    juce::Font titleFont, countFont, keyFont, textFont;
};
} // namespace Zn::GUI
