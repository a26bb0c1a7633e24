#include "GUI/Standalone/StandaloneView.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr double stripHeight = 0.12; // of the editor's

int withStrip (int editorHeight)
{
    return editorHeight + juce::roundToInt (stripHeight * editorHeight);
}
} // namespace

StandaloneView::UsualSize::UsualSize()
{
    const auto [width, height] = Page::defaultSize();
    setSize (width, height);
}

StandaloneView::StandaloneView (std::unique_ptr<juce::AudioProcessorEditor> editorToShow,
                                Page& pageOfEditor,
                                CallbackFunc showDevices)
    : page (pageOfEditor)
    , editor (std::move (editorToShow))
    , strip (pageOfEditor.getContext(), *this, std::move (showDevices))
    , schemeListener (AssetScheme::Base::get(), [this] { repaint(); })
{
    setOpaque (true);
    setWantsKeyboardFocus (true);
    juce::LookAndFeel::setDefaultLookAndFeel (&look);
    juce::Typeface::clearTypefaceCache(); // which knows the system's font by the name for whatever is usual
    strip.setLookAndFeel (&page.getLookAndFeel());
    addAndMakeVisible (*editor);
    addAndMakeVisible (strip);
    childBoundsChanged (editor.get());
}

StandaloneView::~StandaloneView()
{
    juce::LookAndFeel::setDefaultLookAndFeel (nullptr);
    strip.setLookAndFeel (nullptr);
    editor->processor.editorBeingDeleted (editor.get());
}

void StandaloneView::limit (juce::ComponentBoundsConstrainer& constrainer)
{
    juce::ComponentBoundsConstrainer editors;
    Page::limit (editors);
    constrainer.setSizeLimits (editors.getMinimumWidth(),
                               withStrip (editors.getMinimumHeight()),
                               editors.getMaximumWidth(),
                               withStrip (editors.getMaximumHeight()));
    constrainer.setFixedAspectRatio (editors.getFixedAspectRatio() / (1.0 + stripHeight));
}

void StandaloneView::resized()
{
    const juce::ScopedValueSetter<bool> layingOut (isLayingOut, true);
    const auto [defaultWidth, defaultHeight] = Page::defaultSize();
    const auto ratio = double (defaultWidth) / defaultHeight;
    const auto width = juce::jmin (double (getWidth()), getHeight() / (1.0 + stripHeight) * ratio);
    const auto height = juce::roundToInt (width / ratio);
    const auto left = (getWidth() - juce::roundToInt (width)) / 2;

    editor->setBounds (left, 0, juce::roundToInt (width), height);
    strip.setBounds (left, height, juce::roundToInt (width), withStrip (height) - height);
}

void StandaloneView::paint (juce::Graphics& g)
{
    g.fillAll (AssetScheme::Base::get().colourOf ("Window"));
}

bool StandaloneView::keyPressed (const juce::KeyPress& key)
{
    return page.keyPressed (key); // what nobody takes in the strip is meant for the editor
}

void StandaloneView::childBoundsChanged (juce::Component* child)
{
    // The editor has a corner of its own, and projects and undo bring sizes of theirs.
    if (child == editor.get() && ! isLayingOut)
        setSize (editor->getWidth(), withStrip (editor->getHeight()));
}
} // namespace Zn::GUI
