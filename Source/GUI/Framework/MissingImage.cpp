#include "GUI/Framework/MissingImage.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/StaticFontMap.h"

namespace Zn::GUI
{
juce::String missingResource (const juce::String& fileName)
{
    return "Missing Resource: " + fileName;
}

juce::String missingImage (const juce::String& fileName)
{
    return "Missing image " + fileName;
}

void drawMissing (juce::Graphics& g, juce::Rectangle<float> area, const juce::String& words)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto font =
        Binaries::StaticFontMap::get().fontOf ("Inter-Regular.otf", scheme.constantOf ("FontFloorPixels"));
    const auto lines = juce::jmax (1, static_cast<int> (area.getHeight() / font.getHeight()));

    g.setColour (scheme.colourOf ("Text"));
    g.setFont (font);
    g.drawFittedText (words, area.toNearestInt(), juce::Justification::centred, lines);
}
} // namespace Zn::GUI
