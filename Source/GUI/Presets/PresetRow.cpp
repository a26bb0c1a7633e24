#include "GUI/Presets/PresetRow.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/StepsPicture.h"
#include "GUI/Widgets/TextLine.h"

namespace Zn::GUI
{
namespace
{
constexpr auto mark = "sound"; // of a pattern preset that brings its own

juce::Colour colour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}
} // namespace

PresetRowStyle::PresetRowStyle (const AssetScheme::Canvas& canvasToUse, const PresetKind& kind)
    : canvas (canvasToUse)
    , colours (kind.getColours())
    , name (canvas.fontOf ("FontBody"))
    , currentName (canvas.fontOf ("FontBody", AssetScheme::Cut::bold))
    , mark (canvas.fontOf ("FontSmall"))
{
    const auto inRow = [this] (std::string_view element) {
        return (canvas.boundsOf (element) - canvas.boundsOf ("PresetRow").getPosition()).toFloat();
    };

    row = inRow ("PresetRow");
    box = inRow ("PresetRowBox");
    picture = kind.hasPatterns ? inRow ("PresetRowPicture") : juce::Rectangle<float>();
    text = inRow (kind.hasPatterns ? "PresetRowName" : "PresetRowNameAlone");

    const auto icon = canvas.pixelsOf ("IconSizeSmall");
    starArea = inRow ("PresetRowStar").withSizeKeepingCentre (icon, icon);
}

PresetRow::PresetRow (PresetRowOwner& ownerToAsk) : owner (ownerToAsk)
{
    namePlace.setInterceptsMouseClicks (false, false);
    namePlace.setAccessible (false);
    namePlace.setTitle ("Name");
    addAndMakeVisible (namePlace);
}

TooltipText PresetRow::getTooltipText() const
{
    const auto* const preset = owner.presetAt (getRow());
    return preset != nullptr ? owner.tooltipOf (*preset) : TooltipText();
}

void PresetRow::resized()
{
    constexpr auto part = 0.6f; // of the line: what a field may take
    const auto& style = owner.getStyle();
    const auto height = part * style.row.getHeight();
    namePlace.setBounds (
        style.text.withSizeKeepingCentre (style.text.getWidth(), height).getSmallestIntegerContainer());
}

/** Stays at the right, where a scroll bar makes the line shorter. */
juce::Rectangle<float> PresetRow::starArea() const
{
    const auto& style = owner.getStyle();
    return style.starArea.translated (static_cast<float> (getWidth()) - style.row.getWidth(), 0.0f);
}

void PresetRow::paint (juce::Graphics& g)
{
    const auto* const preset = owner.presetAt (getRow());

    if (preset == nullptr)
        return;

    auto& style = owner.getStyle();
    const auto isCurrent = owner.isCurrent (*preset);
    paintGround (g, style.canvas, style.box, style.colours, isCurrent);

    if (const auto* const preview = owner.previewOf (*preset);
        preview != nullptr && ! style.picture.isEmpty())
        paintSteps (g, style.canvas, style.picture, preview->steps);

    paintName (g, *preset, isCurrent);

    if (preset->isFavourite)
        style.starred.paint (g, starArea(), colour (style.colours.accent));
    else
        style.star.paint (g, starArea(), colour ("TextQuiet"));
}

void PresetRow::paintName (juce::Graphics& g, const CataloguedPreset& preset, bool isCurrent)
{
    const auto& style = owner.getStyle();
    auto line = style.text.withRight (style.text.getRight() + starArea().getX() - style.starArea.getX());

    const auto* const preview = owner.previewOf (preset);

    if (preview != nullptr && preview->bringsSound && ! style.picture.isEmpty())
    {
        g.setFont (style.mark);
        g.setColour (colour ("Sound"));
        g.drawText (mark,
                    line.removeFromRight (style.mark.getStringWidthFloat (mark) + 1.0f),
                    juce::Justification::centredRight,
                    false);
        line.removeFromRight (style.canvas.pixelsOf ("CaptionGap"));
    }

    paintTextLine (g,
                   preset.name,
                   isCurrent ? style.currentName : style.name,
                   line,
                   juce::Justification::centredLeft,
                   colour ("Text"));
}

void PresetRow::mouseDown (const juce::MouseEvent& event)
{
    if (event.mods.isPopupMenu())
        owner.menuAsked (getRow());
    else if (starArea().expanded (starArea().getWidth() / 2.0f).contains (event.position))
        owner.starClicked (getRow());
    else if (event.getNumberOfClicks() < 2)
        owner.rowClicked (getRow());
}

void PresetRow::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (! starArea().expanded (starArea().getWidth() / 2.0f).contains (event.position))
        owner.rowDoubleClicked (getRow());
}
} // namespace Zn::GUI
