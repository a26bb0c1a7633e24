#include "GUI/Framework/SVGPainter.h"

#include "GUI/Framework/MissingImage.h"

namespace Zn::GUI
{
namespace
{
juce::String svgColour (juce::Colour colour)
{
    return "#" + colour.toDisplayString (false)
           + juce::String::toHexString (colour.getAlpha()).paddedLeft ('0', 2);
}

/** The rectangle that an SVG draws into. One that tells no size has that of its view box. */
juce::Rectangle<float> pageOf (juce::XmlElement& svg)
{
    const auto viewBox = juce::StringArray::fromTokens (svg.getStringAttribute ("viewBox"), " ,", {});

    const auto lengthOf = [&] (const char* attribute, int indexInViewBox) {
        if (svg.getDoubleAttribute (attribute) <= 0.0)
            svg.setAttribute (attribute, juce::jmax (1.0, viewBox[indexInViewBox].getDoubleValue()));

        return static_cast<float> (svg.getDoubleAttribute (attribute));
    };

    return { lengthOf ("width", 2), lengthOf ("height", 3) };
}
} // namespace

SVGPainter::SVGPainter (const juce::String& fileName, const Binaries::Library& library)
{
    const auto content = contentOf (fileName, library);

    if (content.data() == nullptr)
    {
        error = missingResource (fileName);
        return;
    }

    text = juce::String::fromUTF8 (reinterpret_cast<const char*> (content.data()),
                                   static_cast<int> (content.size()));
    parse ({});

    if (drawable == nullptr)
        error = missingImage (fileName);
}

void SVGPainter::paint (juce::Graphics& g, juce::Rectangle<float> area)
{
    paintAs (g, area, {});
}

void SVGPainter::paint (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour newColour)
{
    paintAs (g, area, svgColour (newColour));
}

void SVGPainter::paintAs (juce::Graphics& g, juce::Rectangle<float> area, const juce::String& newColour)
{
    if (error.isNotEmpty())
    {
        drawMissing (g, area, error);
        return;
    }

    if (newColour != colour)
        parse (newColour);

    // Not drawWithin, which would blow up what is drawn and leave out the margins of the page.
    constexpr auto opaque = 1.0f;
    drawable->draw (
        g,
        opaque,
        juce::RectanglePlacement (juce::RectanglePlacement::centred).getTransformToFit (page, area));
}

void SVGPainter::parse (const juce::String& newColour)
{
    colour = newColour;

    auto svg = juce::parseXML (text);

    if (svg == nullptr || ! svg->hasTagName ("svg"))
        return;

    const auto shown = newColour.isNotEmpty() ? newColour : svg->getStringAttribute ("color", "#000000");
    svg = juce::parseXML (text.replace ("currentColor", shown));
    page = pageOf (*svg);
    drawable = juce::Drawable::createFromSVG (*svg);

    if (drawable != nullptr && drawable->getNumChildComponents() == 0)
        drawable.reset(); // cut off, most likely
}
} // namespace Zn::GUI
