#pragma once

#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Button.h"

namespace Zn::GUI
{
/** The mark and the name, as large as an area allows. Thread: message. */
class LogoPainter
{
public:
    void layOut (const AssetScheme::Canvas& canvas, juce::Rectangle<float> area);
    void paint (juce::Graphics& g);

private:
    SVGPainter mark { "logo.svg" };
    juce::Rectangle<float> markArea;
    juce::GlyphArrangement name;
};

/** The same as a button. Thread: message. */
class Logo : public Button
{
public:
    Logo (EditorContext& contextToUse, std::string element, CallbackFunc onClickToUse);

    void schemeChanged() override { painter.layOut (context.canvas, area()); }

private:
    void paintControl (juce::Graphics& g) override { painter.paint (g); }

    LogoPainter painter;
};
} // namespace Zn::GUI
