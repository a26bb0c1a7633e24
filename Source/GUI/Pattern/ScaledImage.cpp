#include "GUI/Pattern/ScaledImage.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
juce::Image imageAtScale (juce::Rectangle<int> area, float scale)
{
    const auto pixels = [scale] (int length) {
        return std::max (1, static_cast<int> (std::ceil (float (length) * scale)));
    };

    return { juce::Image::RGB, pixels (area.getWidth()), pixels (area.getHeight()), false };
}

void drawAtScale (juce::Graphics& g, const juce::Image& image, float scale)
{
    g.setOpacity (1.0f);
    g.drawImageTransformed (image, juce::AffineTransform::scale (1.0f / scale));
}

void ScaledImage::paint (juce::Graphics& g, juce::Rectangle<int> size)
{
    const auto screenScale = g.getInternalContext().getPhysicalPixelScaleFactor();

    if (image.isNull() || scale != screenScale)
    {
        scale = screenScale;
        image = imageAtScale (size, scale);

        juce::Graphics content (image);
        content.addTransform (juce::AffineTransform::scale (scale));
        paintContent (content);
        ++numPaints;
    }

    drawAtScale (g, image, scale);
}
} // namespace Zn::GUI
