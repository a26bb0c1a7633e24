#include "GUI/Framework/ImageComponent.h"

#include "GUI/Framework/MissingImage.h"

namespace Zn::GUI
{
ImageComponent::ImageComponent (const juce::String& fileName, const Binaries::Library& library)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);

    const auto content = contentOf (fileName, library);

    if (content.data() == nullptr)
        error = missingResource (fileName);
    else if (image = juce::ImageFileFormat::loadFrom (content.data(), content.size()); ! image.isValid())
        error = missingImage (fileName);
}

void ImageComponent::paint (juce::Graphics& g)
{
    const auto area = getLocalBounds().toFloat();

    if (error.isNotEmpty())
        drawMissing (g, area, error);
    else
        g.drawImage (image, area, juce::RectanglePlacement::centred);
}
} // namespace Zn::GUI
