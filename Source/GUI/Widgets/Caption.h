#pragma once

#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Framework/SVGPainter.h"

#include <optional>
#include <string_view>

namespace Zn::GUI
{
/** An icon, a text, or both, as they stand on a button. Thread: message. */
class Caption
{
public:
    enum class Arrangement
    {
        centred, // side by side
        left,    // the same, from the left edge
        stacked  // the icon above the text
    };

    struct Options
    {
        juce::String text {};
        juce::String icon {}; // a file, as "snap.svg"
        Arrangement arrangement = Arrangement::centred;
        AssetScheme::Cut cut = AssetScheme::Cut::regular;
        std::string_view font = "FontBody";
        std::string_view iconSize = "IconSize";
    };

    explicit Caption (Options optionsToUse);

    void setText (const juce::String& newText);
    const juce::String& getText() const noexcept { return options.text; }
    void setIcon (const juce::String& newIcon);

    /** Makes what depends on sizes. */
    void layOut (const AssetScheme::Canvas& canvas, juce::Rectangle<float> area);

    void paint (juce::Graphics& g, juce::Colour iconColour, juce::Colour textColour);

    /** Of icon and text side by side, in pixels; for a canvas that it has been laid out on. */
    float getWidth() const noexcept;

private:
    void arrange();

    Options options;
    std::optional<SVGPainter> icon;
    juce::Font font;
    juce::Rectangle<float> area, iconArea, textArea;
    float iconPixels = 0.0f, gap = 0.0f, inset = 0.0f, textWidth = 0.0f;
};
} // namespace Zn::GUI
