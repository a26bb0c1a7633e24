#include "GUI/Framework/SVGImage.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
SVGImage::SVGImage (const juce::String& fileName, std::string colourToUse, const Binaries::Library& library)
    : painter (fileName, library), colour (std::move (colourToUse))
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

void SVGImage::setColour (std::string newColour)
{
    if (newColour == colour)
        return;

    colour = std::move (newColour);
    repaint();
}

void SVGImage::paint (juce::Graphics& g)
{
    const auto area = getLocalBounds().toFloat();

    if (colour.empty())
        painter.paint (g, area);
    else
        painter.paint (g, area, AssetScheme::Base::get().colourOf (colour));
}
} // namespace Zn::GUI
