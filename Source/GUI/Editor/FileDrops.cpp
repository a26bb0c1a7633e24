#include "GUI/Editor/FileDrops.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
DropTarget::DropTarget (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "DropTarget"), context (contextToUse)
{
    setInterceptsMouseClicks (false, false);
    setVisible (false);
}

void DropTarget::invite (const juce::String& words, const juce::String& icon, const std::string& accentToUse)
{
    accent = accentToUse;
    caption.setIcon (icon);
    caption.setText (words);
    schemeChanged();
    setVisible (true);
    toFront (false);
    repaint();
}

void DropTarget::schemeChanged()
{
    inset = context.canvas.pixelsOf ("PopupInset");
    const auto area = getLocalBounds().toFloat().reduced (inset);
    const auto stroke = context.canvas.pixelsOf ("ThinStroke");
    const float dashes[] = { 3.0f * stroke, 2.0f * stroke };

    juce::Path outline;
    outline.addRoundedRectangle (area, context.canvas.pixelsOf ("PopupRadius"));
    juce::PathStrokeType (stroke).createDashedStroke (edge, outline, dashes, int (std::size (dashes)));
    caption.layOut (context.canvas, getLocalBounds().toFloat());
}

void DropTarget::paint (juce::Graphics& g)
{
    const auto& scheme = AssetScheme::Base::get();
    const auto area = getLocalBounds().toFloat().reduced (inset);

    g.fillAll (scheme.colourOf ("LearnDim"));
    g.setColour (scheme.colourOf (accent + "Wash"));
    g.fillRoundedRectangle (area, context.canvas.pixelsOf ("PopupRadius"));
    g.setColour (scheme.colourOf (accent));
    g.fillPath (edge);

    const auto width = caption.getWidth() + 4.0f * inset;
    const auto plate = getLocalBounds().toFloat().withSizeKeepingCentre (width, 4.0f * inset);
    g.setColour (scheme.colourOf ("Popup"));
    g.fillRoundedRectangle (plate, context.canvas.pixelsOf ("PopupRadius"));
    caption.paint (g, scheme.colourOf (accent), scheme.colourOf ("Text"));
}

FileDrops::FileDrops (EditorContext& contextToUse, std::vector<Kind> kindsToTake)
    : context (contextToUse), kinds (std::move (kindsToTake)), target (contextToUse)
{}

void FileDrops::enter (const juce::StringArray& files)
{
    if (const auto* kind = kindOf (files))
        target.invite (kind->invitation, kind->icon, kind->accent);
}

void FileDrops::drop (const juce::StringArray& files)
{
    exit();

    if (const auto* kind = kindOf (files))
        kind->drop (files);
}

const FileDrops::Kind* FileDrops::kindOf (const juce::StringArray& files) const
{
    if (files.contains (context.draggedOut.getFullPathName()))
        return nullptr; // somebody has thought better of it

    const auto kind = std::ranges::find_if (kinds, [&files] (const Kind& k) { return k.accepts (files); });
    return kind != kinds.end() ? &*kind : nullptr;
}
} // namespace Zn::GUI
