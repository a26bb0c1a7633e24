#pragma once

#include "GUI/Framework/Resources.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace Zn::GUI
{
/** Shows an embedded image of pixels, as large as its bounds allow and in their middle. Lets clicks through.
    Thread: message.
*/
class ImageComponent : public juce::Component
{
public:
    explicit ImageComponent (const juce::String& fileName, const Binaries::Library& library = resources());

    /** The words that are drawn in its place; empty if all is well. */
    const juce::String& getError() const noexcept { return error; }

    void paint (juce::Graphics& g) override;

private:
    juce::Image image;
    juce::String error;
};
} // namespace Zn::GUI
