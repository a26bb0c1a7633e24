#include "Foundation/Singleton.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/AssetScheme/Canvas.h"
#include "GUI/Framework/Resources.h"
#include "Presets/Reflection/JsonText.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <iostream>

namespace
{
using namespace Zn::GUI;

constexpr auto usage = R"(Usage: vornel-scheme FILE.png [--width=PIXELS] [--folded] [--popups]

Draws the rectangles of the editor with their names: those of its page, with the sound folded
away with --folded, or those of its pop-ups with --popups. The width is 1100 unless told.
)";

bool isPopup (const std::string& element)
{
    static const auto popups = Zn::Json::parse (textOf (contentOf ("Popups.json")));
    return popups.contains (element);
}

bool isNamesake (const std::string& element)
{
    const juce::String name (element);
    return name.endsWith ("Tall") || name.endsWith ("Folded");
}

void draw (juce::Graphics& g, const AssetScheme::Canvas& canvas, const std::string& element)
{
    const auto bounds = canvas.boundsOf (element).toFloat();
    const auto hue = float (Zn::Binaries::hashOf (element) % 360) / 360.0f;
    const auto colour = juce::Colour::fromHSV (hue, 0.5f, 1.0f, 1.0f);
    constexpr auto outline = 1.0f;

    g.setColour (colour.withAlpha (0.08f));
    g.fillRect (bounds);
    g.setColour (colour.withAlpha (0.7f));
    g.drawRect (bounds, outline);
    g.setColour (colour);
    g.drawFittedText (element, bounds.toNearestInt(), juce::Justification::topLeft, 2, 0.6f);
}

juce::Image drawn (AssetScheme::Canvas& canvas, bool popups)
{
    const auto& root = canvas.getRoot();
    const auto& scheme = AssetScheme::Base::get();
    juce::Image image (juce::Image::RGB, root.getWidth(), root.getHeight(), true);
    juce::Graphics g (image);

    g.fillAll (scheme.colourOf ("Window"));
    g.setFont (canvas.fontOf ("FontSmall"));

    for (const auto& [element, entry] : scheme.getTables().getRectangles())
        if (! entry.parent.empty() && ! isNamesake (element) && isPopup (element) == popups)
            draw (g, canvas, element);

    return image;
}

bool write (const juce::Image& image, const juce::File& file)
{
    file.deleteFile();
    juce::FileOutputStream stream (file);
    return stream.openedOk() && juce::PNGImageFormat().writeImageToStream (image, stream);
}

int run (const juce::ArgumentList& arguments)
{
    const auto width = arguments.containsOption ("--width")
                           ? arguments.getValueForOption ("--width").getIntValue()
                           : AssetScheme::Canvas::defaultSize().width;
    constexpr auto largestWidth = 16384; // pixels

    if (arguments.size() == 0 || arguments[0].isOption() || width < 1 || width > largestWidth)
    {
        std::cerr << usage;
        return 2;
    }

    const auto [defaultWidth, defaultHeight] = AssetScheme::Canvas::defaultSize();
    juce::Component root;
    root.setSize (width, juce::roundToInt (double (width) * defaultHeight / defaultWidth));

    AssetScheme::Canvas canvas (root);
    canvas.setFold (arguments.containsOption ("--folded") ? AssetScheme::Fold::folded
                                                          : AssetScheme::Fold::open);

    const auto file = arguments[0].resolveAsFile();

    if (write (drawn (canvas, arguments.containsOption ("--popups")), file))
        return 0;

    std::cerr << "Cannot write " << file.getFullPathName() << "\n";
    return 1;
}
} // namespace

int main (int argc, char** argv)
{
    const juce::ScopedJuceInitialiser_GUI juceIsRunning;
    const Zn::Singleton::UserToken singletonsStay;
    return run (juce::ArgumentList (argc, argv));
}
