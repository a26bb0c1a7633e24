#include "GUI/Header/Logo.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
namespace
{
// As drawn: parts of the height of the area.
constexpr auto markHeight = 0.772f, markWidth = 0.804f, nameStart = 1.206f;

constexpr auto markPerName = 1.171f;    // height of the mark over the em of the name
constexpr auto letterSpacing = 0.0574f; // of the height of a line
constexpr auto capHeight = 0.72f;       // of the em
} // namespace

void LogoPainter::layOut (const AssetScheme::Canvas& canvas, juce::Rectangle<float> area)
{
    const auto height = area.getHeight();
    markArea =
        area.withWidth (markWidth * height).withSizeKeepingCentre (markWidth * height, markHeight * height);

    const auto usual = canvas.pixelsOf ("FontLogo");
    const auto em = markHeight * height / markPerName;
    auto font = canvas.fontOf ("FontLogo", AssetScheme::Cut::logo);
    font = font.withHeight (font.getHeight() * em / usual).withExtraKerningFactor (letterSpacing);

    name.clear();
    name.addLineOfText (font,
                        "VORNEL",
                        area.getX() + nameStart * height,
                        area.getCentreY() + capHeight * em / 2.0f);
}

void LogoPainter::paint (juce::Graphics& g)
{
    mark.paint (g, markArea);
    g.setColour (AssetScheme::Base::get().colourOf ("Text"));
    name.draw (g);
}

Logo::Logo (EditorContext& contextToUse, std::string element, CallbackFunc onClickToUse)
    : Button (contextToUse, std::move (element), { .text = juce::String() }, std::move (onClickToUse))
{}
} // namespace Zn::GUI
