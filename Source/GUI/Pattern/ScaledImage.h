#pragma once

#include <juce_graphics/juce_graphics.h>

#include <functional>

namespace Zn::GUI
{
/** Keeps what a component has painted in the screen's own pixels, for what is often uncovered and seldom changes.
    Thread: message.
*/
class ScaledImage
{
public:
    using Paint = std::function<void (juce::Graphics&)>;

    explicit ScaledImage (Paint paintToUse, juce::Image::PixelFormat formatToUse = juce::Image::RGB)
        : paintContent (std::move (paintToUse)), format (formatToUse)
    {}

    /** It is painted anew next time. */
    void invalidate() { image = {}; }

    /** From the component's corner. What is painted must cover all of the size where the format has no transparency. */
    void paint (juce::Graphics& g, juce::Rectangle<int> size, float opacity = 1.0f);

    /** How often it was painted anew, for tests. */
    int getNumPaints() const noexcept { return numPaints; }

private:
    const Paint paintContent;
    const juce::Image::PixelFormat format;
    juce::Image image;
    float scale = 1.0f; // physical pixels in one of ours
    int numPaints = 0;
};

/** An image that is large enough for an area on a screen, with nothing in it yet. */
juce::Image
imageAtScale (juce::Rectangle<int> area, float scale, juce::Image::PixelFormat format = juce::Image::RGB);

/** Puts such an image to the component's corner, pixel for pixel. */
void drawAtScale (juce::Graphics& g, const juce::Image& image, float scale, float opacity = 1.0f);
} // namespace Zn::GUI
