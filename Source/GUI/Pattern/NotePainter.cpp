#include "GUI/Pattern/NotePainter.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <array>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto brightnessExponent = 1.35f; // of the velocity, so that loud notes stand out
constexpr auto soundingShare = 0.72f;      // of the colour of a note that sounds
constexpr auto glowOpacity = 0.3f;
constexpr auto glowStrokes = 3.0f; // how far the glow reaches, in hairlines
constexpr auto fullStripe = 0.92f; // of the hatch's period, at a chance of almost 1
constexpr auto hoverBrightness = 0.3f;
constexpr auto widestEdgeLine = 4.0f; // notes below this width in corners show no line
} // namespace

void NotePainter::load (const AssetScheme::Canvas& canvas)
{
    const auto& scheme = AssetScheme::Base::get();
    quiet = scheme.colourOf ("NoteQuiet");
    loud = scheme.colourOf ("NoteLoud");
    edge = scheme.colourOf ("NoteEdge");
    ghost = scheme.colourOf ("NoteGhost");
    sounding = scheme.colourOf ("NoteSounding");
    selected = scheme.colourOf ("NoteSelected");
    glow = scheme.colourOf ("Pattern").withMultipliedAlpha (glowOpacity);
    ground = scheme.colourOf ("Roll");
    focus = scheme.colourOf ("Focus");

    hairline = std::max (1.0f, canvas.pixelsOf ("HairlineStroke"));
    edgeStroke = std::max (1.0f, canvas.pixelsOf ("ThinnerStroke"));
    focusStroke = canvas.pixelsOf ("ThinStroke");
    hatchPeriod = std::max (2.0f, canvas.pixelsOf ("ChanceHatchPeriod"));
    constexpr auto percent = 0.01f;
    cornerProportion = scheme.constantOf ("NoteCorner") * percent;
}

void NotePainter::setRowHeight (float newRowHeight)
{
    corner = newRowHeight * cornerProportion;
}

juce::Colour NotePainter::colourOf (float velocity) const
{
    return quiet.interpolatedWith (loud, std::pow (std::clamp (velocity, 0.0f, 1.0f), brightnessExponent));
}

float NotePainter::cornerOf (juce::Rectangle<float> box) const
{
    return std::min (corner, 0.5f * box.getWidth());
}

juce::Rectangle<int> NotePainter::areaOf (const NoteLook& look) const
{
    const auto reach =
        std::max (glowStrokes * hairline, edgeStroke) + (look.isFocused ? focusGap + focusStroke : 0.0f);
    return look.box.expanded (reach + 1.0f).getSmallestIntegerContainer();
}

void NotePainter::paint (juce::Graphics& g, const NoteLook& look) const
{
    if (look.kind == NoteLook::Kind::ghost)
        paintGhost (g, look);
    else
        paintNote (g, look);
}

void NotePainter::paintNote (juce::Graphics& g, const NoteLook& look) const
{
    const auto round = cornerOf (look.box);
    auto colour = colourOf (look.velocity);

    if (look.isHovered)
        colour = colour.interpolatedWith (loud.brighter (hoverBrightness), hoverBrightness);

    if (look.isSounding)
    {
        const auto reach = glowStrokes * hairline;
        g.setColour (glow);
        g.fillRoundedRectangle (look.box.expanded (reach), round + reach);
        colour = colour.interpolatedWith (sounding, soundingShare);
    }

    g.setColour (look.isEnabled && look.chance >= 1.0f ? colour : ground);
    g.fillRoundedRectangle (look.box, round);

    if (! look.isEnabled || look.chance < 1.0f)
    {
        if (look.isEnabled)
            paintHatch (g, look, colour);

        g.setColour (look.isEnabled ? colour : quiet);
        g.drawRoundedRectangle (look.box.reduced (0.5f * hairline), round, hairline);
    }
    else if (look.box.getWidth() > widestEdgeLine * round)
    {
        constexpr auto faintest = 0.25f, strongest = 0.85f; // from the softest note to the loudest
        g.setColour (edge.withMultipliedAlpha (faintest + (strongest - faintest) * look.velocity));
        g.fillRect (look.box.reduced (0.5f * round, hairline).removeFromTop (hairline));
    }

    if (look.isHovered)
        paintGrip (g, look.box);

    paintEdges (g, look);
}

void NotePainter::paintHatch (juce::Graphics& g, const NoteLook& look, juce::Colour colour) const
{
    const auto across = hatchPeriod * juce::MathConstants<float>::sqrt2; // the stripes stand at 45 degrees
    const auto width = across * fullStripe * look.chance;
    const auto& box = look.box;

    // A note may be far longer than what is seen of it.
    const auto seen = g.getClipBounds().toFloat();
    const auto first = box.getX() - box.getHeight();
    const auto numSkipped = std::floor (std::max (0.0f, seen.getX() - box.getHeight() - first) / across);
    const auto end = std::min (box.getRight(), seen.getRight());

    juce::Path stripes;

    for (auto x = first + numSkipped * across; x < end; x += across)
        stripes.addQuadrilateral (x,
                                  box.getBottom(),
                                  x + width,
                                  box.getBottom(),
                                  x + width + box.getHeight(),
                                  box.getY(),
                                  x + box.getHeight(),
                                  box.getY());

    juce::Path outline;
    outline.addRoundedRectangle (box, cornerOf (box));

    const juce::Graphics::ScopedSaveState state (g);
    g.reduceClipRegion (outline);
    g.setColour (colour);
    g.fillPath (stripes);
}

void NotePainter::paintGrip (juce::Graphics& g, juce::Rectangle<float> box) const
{
    constexpr auto leastWidth = 1.5f; // of the height: shorter notes have no room for it
    constexpr auto opacity = 0.75f;

    if (box.getWidth() < leastWidth * box.getHeight())
        return;

    const auto line = std::round (edgeStroke);
    auto area = box.withTrimmedRight (corner).reduced (0.0f, 0.22f * box.getHeight());
    g.setColour (ground.withAlpha (opacity));
    g.fillRect (area.removeFromRight (line));
    area.removeFromRight (line * 2.0f);
    g.fillRect (area.removeFromRight (line));
}

void NotePainter::paintEdges (juce::Graphics& g, const NoteLook& look) const
{
    if (look.isSelected)
    {
        const auto half = 0.5f * edgeStroke;
        g.setColour (selected);
        g.drawRoundedRectangle (look.box.expanded (half), cornerOf (look.box) + half, edgeStroke);
    }

    if (look.isFocused)
    {
        g.setColour (focus);
        g.drawRoundedRectangle (look.box.expanded (focusGap), corner + focusGap, focusStroke);
    }
}

void NotePainter::paintGhost (juce::Graphics& g, const NoteLook& look) const
{
    constexpr auto fillOpacity = 0.3f, litOpacity = 0.75f;
    const auto round = cornerOf (look.box);

    g.setColour (look.isSounding ? sounding.withMultipliedAlpha (litOpacity)
                                 : ghost.withMultipliedAlpha (fillOpacity));
    g.fillRoundedRectangle (look.box, round);

    if (look.isSounding)
        return;

    juce::Path outline, dashes;
    const std::array dashLengths { 4.0f * hairline, 3.0f * hairline };
    const auto seen = g.getClipBounds().toFloat().expanded (look.box.getHeight());
    outline.addRoundedRectangle (look.box.reduced (0.5f * hairline).getIntersection (seen), round);
    juce::PathStrokeType (hairline).createDashedStroke (dashes, outline, dashLengths.data(), 2);
    g.setColour (ghost);
    g.fillPath (dashes);
}
} // namespace Zn::GUI
