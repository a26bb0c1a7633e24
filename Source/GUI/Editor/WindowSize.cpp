#include "GUI/Editor/WindowSize.h"

#include "GUI/Framework/AssetScheme/Canvas.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace Zn::GUI
{
namespace
{
using AssetScheme::Canvas;

/** The host's editor, or the outermost component there is. */
const juce::Component& windowOf (const juce::Component& part)
{
    if (const auto* editor = part.findParentComponentOfClass<juce::AudioProcessorEditor>())
        return *editor;

    const auto* outermost = &part;

    while (outermost->getParentComponent() != nullptr)
        outermost = outermost->getParentComponent();

    return *outermost;
}
} // namespace

Dimensions<int> windowSizeOf (const juce::Component& part)
{
    const auto& window = windowOf (part);
    return { window.getWidth(), window.getHeight() };
}

void setWindowWidth (juce::Component& part, int width)
{
    const auto [usualWidth, usualHeight] = Canvas::defaultSize();
    auto* const editor = part.findParentComponentOfClass<juce::AudioProcessorEditor>();
    auto& window = editor != nullptr ? *editor : *part.getTopLevelComponent();
    const auto height = juce::roundToInt (double (width) * usualHeight / usualWidth);
    const auto bounds = window.getBounds().withSize (width, height);

    juce::ComponentBoundsConstrainer limits;
    Canvas::limit (limits);
    limits.setBoundsForComponent (&window, bounds, false, false, true, true);
}

float windowScaleOf (const juce::Component& part)
{
    return float (windowSizeOf (part).width) / float (Canvas::defaultSize().width);
}

void setWindowScale (juce::Component& part, float scale)
{
    setWindowWidth (part, juce::roundToInt (scale * float (Canvas::defaultSize().width)));
}
} // namespace Zn::GUI
