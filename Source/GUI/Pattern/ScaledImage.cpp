#include "GUI/Pattern/ScaledImage.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
juce::Image imageAtScale (juce::Rectangle<int> area, float scale, juce::Image::PixelFormat format)
{
    const auto pixels = [scale] (int length) {
        return std::max (1, static_cast<int> (std::ceil (float (length) * scale)));
    };

    const auto isClear = format != juce::Image::RGB;
    return { format, pixels (area.getWidth()), pixels (area.getHeight()), isClear };
}

void drawAtScale (juce::Graphics& g, const juce::Image& image, float scale, float opacity)
{
    // Pixel for pixel, even where the place on the screen is no whole one.
    g.setImageResamplingQuality (juce::Graphics::lowResamplingQuality);
    g.setOpacity (opacity);
    g.drawImageTransformed (image, juce::AffineTransform::scale (1.0f / scale));
}

void ScaledImage::paint (juce::Graphics& g, juce::Rectangle<int> size, float opacity)
{
    const auto screenScale = g.getInternalContext().getPhysicalPixelScaleFactor();

    if (image.isNull() || scale != screenScale)
    {
        scale = screenScale;
        image = imageAtScale (size, scale, format);

        juce::Graphics content (image);
        content.addTransform (juce::AffineTransform::scale (scale));
        paintContent (content);
        ++numPaints;
    }

    drawAtScale (g, image, scale, opacity);
}
} // namespace Zn::GUI
