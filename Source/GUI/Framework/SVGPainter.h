#pragma once

#include "GUI/Framework/Resources.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>
#include <vector>

namespace Zn::GUI
{
/** Draws an embedded SVG, as large as its area allows and in its middle. What the file paints in
    "currentColor" takes the colour it is asked for, or that of the file; it is parsed once for each of a few
    colours. Thread: message.
*/
class SVGPainter
{
public:
    explicit SVGPainter (const juce::String& fileName, const Binaries::Library& library = resources());

    void paint (juce::Graphics& g, juce::Rectangle<float> area);
    void paint (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour colour);

    /** The words that are drawn in its place; empty if all is well. */
    const juce::String& getError() const noexcept { return error; }

private:
    struct Tinted
    {
        juce::Colour colour;
        std::unique_ptr<juce::Drawable> drawable;
    };

    void draw (juce::Graphics& g, juce::Rectangle<float> area, const juce::Drawable* drawable) const;
    const juce::Drawable* tintedIn (juce::Colour colour);

    juce::String text, error;
    juce::Rectangle<float> page;
    std::unique_ptr<juce::Drawable> untinted;
    std::vector<Tinted> tinted; // those of the last few colours
    std::size_t newest = 0;     // of them
};
} // namespace Zn::GUI
