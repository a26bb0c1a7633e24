#include "GUI/Framework/SVGPainter.h"

#include "GUI/Framework/MissingImage.h"

#include <algorithm>
#include <utility>

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

/** None if nothing is drawn: it has been cut off, most likely. */
std::unique_ptr<juce::Drawable> drawableOf (const juce::String& text, const juce::String& colour)
{
    const auto svg = juce::parseXML (text.replace ("currentColor", colour));

    if (svg == nullptr)
        return nullptr;

    pageOf (*svg); // gives it a size
    auto drawable = juce::Drawable::createFromSVG (*svg);
    return drawable != nullptr && drawable->getNumChildComponents() > 0 ? std::move (drawable) : nullptr;
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
    const auto svg = juce::parseXML (text);

    if (svg != nullptr && svg->hasTagName ("svg"))
    {
        page = pageOf (*svg);
        untinted = drawableOf (text, svg->getStringAttribute ("color", "#000000"));
    }

    if (untinted == nullptr)
        error = missingImage (fileName);
}

void SVGPainter::paint (juce::Graphics& g, juce::Rectangle<float> area)
{
    draw (g, area, untinted.get());
}

void SVGPainter::paint (juce::Graphics& g, juce::Rectangle<float> area, juce::Colour colour)
{
    draw (g, area, tintedIn (colour));
}

void SVGPainter::draw (juce::Graphics& g, juce::Rectangle<float> area, const juce::Drawable* drawable) const
{
    if (drawable == nullptr)
        return drawMissing (g, area, error);

    // Not drawWithin, which would blow up what is drawn and leave out the margins of the page.
    constexpr auto opaque = 1.0f;
    drawable->draw (
        g,
        opaque,
        juce::RectanglePlacement (juce::RectanglePlacement::centred).getTransformToFit (page, area));
}

const juce::Drawable* SVGPainter::tintedIn (juce::Colour colour)
{
    constexpr auto mostColours = 4u; // of one icon: at rest, chosen, and both while disabled

    if (untinted == nullptr)
        return nullptr;

    const auto hasColour = [colour] (const Tinted& one) { return one.colour == colour; };

    if (const auto known = std::find_if (tinted.begin(), tinted.end(), hasColour); known != tinted.end())
        return known->drawable.get();

    newest = tinted.size() < mostColours ? tinted.size() : (newest + 1) % mostColours;

    if (newest == tinted.size())
        tinted.emplace_back();

    tinted[newest] = { colour, drawableOf (text, svgColour (colour)) };
    return tinted[newest].drawable.get();
}
} // namespace Zn::GUI
