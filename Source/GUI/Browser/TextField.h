#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Framework/SVGPainter.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** A line of text to be typed. What it is for is written in it until there is some. Thread: message. */
class TextField : public AssetScheme::Element<juce::TextEditor>
{
public:
    TextField (AssetScheme::Canvas& canvas, std::string element, const juce::String& icon = {});

    void setPlaceholder (const juce::String& newPlaceholder);

    /** Keys that it does not take; asked first, whether they are for somebody else. */
    std::function<bool (const juce::KeyPress&)> onKey;

    bool keyPressed (const juce::KeyPress& key) override;
    void paint (juce::Graphics& g) override;
    void schemeChanged() override;

private:
    std::optional<SVGPainter> icon;
    juce::String placeholder;
    juce::Font font;
    juce::Rectangle<float> iconArea, textArea;
};
} // namespace Zn::GUI
