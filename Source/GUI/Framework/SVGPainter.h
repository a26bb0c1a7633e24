#pragma once

#include "GUI/Framework/Resources.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>
#include <optional>

namespace Zn::GUI
{
/** Draws an embedded SVG, as large as its area allows and in its middle. What the file paints in
    "currentColor" takes the colour it is asked for, or that of the file. Thread: message.
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
    void paintAs (juce::Graphics& g, juce::Rectangle<float> area, const juce::String& newColour);
    void parse (const juce::String& newColour);

    juce::String text, error;
    juce::String colour; // as SVG writes it, of the drawable
    juce::Rectangle<float> page;
    std::unique_ptr<juce::Drawable> drawable;
};
} // namespace Zn::GUI
