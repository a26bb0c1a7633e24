#include "GUI/Framework/DynamicImage.h"

#include "GUI/Framework/ImageComponent.h"
#include "GUI/Framework/SVGImage.h"

namespace Zn::GUI
{
DynamicImage::DynamicImage (const juce::String& fileName,
                            const std::string& colour,
                            const Binaries::Library& libraryToUse)
    : library (libraryToUse)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
    setImage (fileName, colour);
}

void DynamicImage::setImage (const juce::String& fileName, const std::string& colour)
{
    const auto show = [this] (auto newImage) {
        error = newImage->getError();
        image = std::move (newImage);
    };

    if (fileName.endsWith (".svg"))
        show (std::make_unique<SVGImage> (fileName, colour, library));
    else
        show (std::make_unique<ImageComponent> (fileName, library));

    addAndMakeVisible (*image);
    resized();
}

void DynamicImage::resized()
{
    image->setBounds (getLocalBounds());
}
} // namespace Zn::GUI
