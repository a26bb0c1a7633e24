#pragma once

#include "GUI/Framework/SVGPainter.h"

#include <string>

namespace Zn::GUI
{
/** Shows an embedded SVG, in a colour of the scheme if it is told one. Lets clicks through. Thread: message. */
class SVGImage : public juce::Component
{
public:
    explicit SVGImage (const juce::String& fileName,
                       std::string colourToUse = {},
                       const Binaries::Library& library = resources());

    /** By its name in the scheme; the file's own with an empty one. */
    void setColour (std::string newColour);

    const juce::String& getError() const noexcept { return painter.getError(); }

    void paint (juce::Graphics& g) override;

private:
    SVGPainter painter;
    std::string colour;
};
} // namespace Zn::GUI
