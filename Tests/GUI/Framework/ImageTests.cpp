#include "Foundation/Singleton.h"
#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/DynamicImage.h"
#include "GUI/Framework/SVGPainter.h"

#include <gtest/gtest.h>

#include <array>

namespace Zn::GUI
{
namespace
{
Binaries::Bytes bytesOf (std::string_view text)
{
    return std::as_bytes (std::span (text));
}

juce::MemoryBlock redPng()
{
    juce::Image image (juce::Image::ARGB, 4, 2, true);
    image.clear (image.getBounds(), juce::Colours::red);
    juce::MemoryOutputStream stream;
    juce::PNGImageFormat().writeImageToStream (image, stream);
    return stream.getMemoryBlock();
}

/** What a component draws at its size. */
juce::Image shotOf (juce::Component& component, int width, int height)
{
    component.setSize (width, height);
    return component.createComponentSnapshot (component.getLocalBounds());
}

/** How many pixels are drawn at all, and the colour of the strongest. */
struct Ink
{
    explicit Ink (const juce::Image& image)
    {
        for (auto y = 0; y < image.getHeight(); ++y)
            for (auto x = 0; x < image.getWidth(); ++x)
            {
                const auto pixel = image.getPixelAt (x, y);
                area = pixel.getAlpha() > 0 ? area.getUnion ({ x, y, 1, 1 }) : area;
                colour = pixel.getAlpha() > colour.getAlpha() ? pixel : colour;
            }
    }

    juce::Rectangle<int> area;
    juce::Colour colour { juce::Colours::transparentBlack };
};

struct SchemeImages : testing::Test
{
    Singleton::UserToken singletonsStay;
    juce::MemoryBlock png = redPng();
    std::array<Binaries::Library::File, 4> files {
        { { "red.png", { static_cast<const std::byte*> (png.getData()), png.getSize() } },
          { "broken.png", bytesOf ("no image") },
          { "broken.svg", bytesOf ("<svg") },
          { "square.svg",
            bytesOf (R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 20" color="#00ff00">)"
                     R"(<path d="M5 5h10v10h-10z" fill="currentColor"/></svg>)") } }
    };
    Binaries::Library library { files };
};
} // namespace

TEST_F (SchemeImages, DrawEveryIconInTheColourItIsAskedFor)
{
    auto numIcons = 0;

    for (const auto* name :
         { "chance", "check",   "clear", "close",    "cursor", "down",    "drag",   "fit",      "folder",
           "help",   "keys",    "learn", "loop",     "menu",   "midi",    "minus",  "next",     "pencil",
           "play",   "plus",    "power", "previous", "redo",   "resize",  "search", "settings", "snap",
           "star",   "starred", "stop",  "undo",     "up",     "velocity" })
    {
        DynamicImage icon (juce::String (name) + ".svg", "Midi");
        EXPECT_EQ (icon.getError(), "");

        const Ink ink (shotOf (icon, 64, 64));
        const auto wanted = AssetScheme::Base::get().colourOf ("Midi");
        EXPECT_EQ (ink.colour, wanted) << name;
        EXPECT_TRUE (juce::Rectangle<int> (64, 64).reduced (2).contains (ink.area))
            << name << " leaves no margin";
        ++numIcons;
    }

    EXPECT_EQ (numIcons, 33);
}

TEST_F (SchemeImages, KeepTheMarginsOfTheirPageAndTheMiddleOfTheirArea)
{
    DynamicImage square ("square.svg", {}, library);
    const Ink green (shotOf (square, 80, 40));
    EXPECT_EQ (green.area, juce::Rectangle<int> (30, 10, 20, 20));
    EXPECT_EQ (green.colour, juce::Colour (0, 255, 0));

    square.setImage ("red.png");
    const Ink red (shotOf (square, 40, 40));
    EXPECT_EQ (red.area, juce::Rectangle<int> (0, 10, 40, 20));
    EXPECT_EQ (red.colour, juce::Colours::red);
}

TEST_F (SchemeImages, SayInTheirPlaceWhatIsMissing)
{
    const std::pair<const char*, const char*> rows[] = { { "none.svg", "Missing Resource: none.svg" },
                                                         { "none.png", "Missing Resource: none.png" },
                                                         { "", "Missing Resource: " },
                                                         { "broken.svg", "Missing image broken.svg" },
                                                         { "broken.png", "Missing image broken.png" } };

    for (const auto& [file, words] : rows)
    {
        DynamicImage image (file, {}, library);
        EXPECT_EQ (image.getError(), juce::String (words));
        EXPECT_FALSE (Ink (shotOf (image, 200, 30)).area.isEmpty()) << file;
        shotOf (image, 1, 1); // no room, no harm
    }
}
} // namespace Zn::GUI
