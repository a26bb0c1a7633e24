#include "GUI/Widgets/NoEntryPointer.h"

#include "GUI/Framework/AssetScheme/Base.h"

namespace Zn::GUI
{
namespace
{
juce::MouseCursor makePointer()
{
    constexpr auto size = 20; // pixels, as other pointers
    constexpr auto stroke = 2.5f, edge = 1.5f;
    constexpr auto topLeft = juce::MathConstants<float>::pi / 4.0f; // from upright
    const auto& scheme = AssetScheme::Base::get();
    const auto circle = juce::Rectangle<int> (size, size).toFloat().reduced (edge + stroke / 2.0f);

    juce::Path sign;
    sign.addEllipse (circle);
    sign.startNewSubPath (circle.getCentre().getPointOnCircumference (circle.getWidth() / 2.0f, -topLeft));
    sign.lineTo (circle.getCentre().getPointOnCircumference (circle.getWidth() / 2.0f,
                                                             juce::MathConstants<float>::pi - topLeft));

    juce::Image image (juce::Image::ARGB, size, size, true);
    juce::Graphics g (image);
    g.setColour (scheme.colourOf ("Roll")); // to be seen on bright ground
    g.strokePath (sign, juce::PathStrokeType (stroke + 2.0f * edge));
    g.setColour (scheme.colourOf ("Danger"));
    g.strokePath (sign, juce::PathStrokeType (stroke));
    return { image, size / 2, size / 2 };
}
} // namespace

const juce::MouseCursor& NoEntryPointer::get()
{
    if (pointer == juce::MouseCursor())
        pointer = makePointer();

    return pointer;
}
} // namespace Zn::GUI
