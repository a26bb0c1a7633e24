#pragma once

#include "GUI/Framework/Resources.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>
#include <string>

namespace Zn::GUI
{
/** Shows an embedded image by the name of its file: an SVGImage for one that ends in ".svg", an ImageComponent for
    any other. Thread: message.
*/
class DynamicImage : public juce::Component
{
public:
    /** The colour is one of the scheme, for what an SVG leaves open. */
    explicit DynamicImage (const juce::String& fileName,
                           const std::string& colour = {},
                           const Binaries::Library& library = resources());

    /** Shows another file. */
    void setImage (const juce::String& fileName, const std::string& colour = {});

    /** The words that are shown in the image's place; empty if all is well. */
    const juce::String& getError() const noexcept { return error; }

    void resized() override;

private:
    const Binaries::Library& library;
    std::unique_ptr<juce::Component> image;
    juce::String error;
};
} // namespace Zn::GUI
