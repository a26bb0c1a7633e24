#include "GUI/Header/HeaderBand.h"

#include "GUI/Popups/AboutPopup.h"
#include "GUI/Popups/RoutingPopup.h"
#include "GUI/Popups/SettingsPopup.h"

#include <initializer_list>

namespace Zn::GUI
{
namespace
{
using Look = Button::Look;

/** Opens it, or closes it if it is the one that is open. */
template <typename PopupType>
void toggle (EditorContext& context)
{
    if (dynamic_cast<PopupType*> (context.overlay.getPopup()) != nullptr)
        context.overlay.closePopup();
    else
        context.overlay.openPopup (std::make_unique<PopupType> (context));
}
} // namespace

HeaderBand::HeaderBand (EditorContext& contextToUse)
    : Element (contextToUse.canvas, "Header")
    , context (contextToUse)
    , logo (context, "Logo", [this] { toggle<AboutPopup> (context); })
    , presets (context, PresetKind::patterns (context.state()))
    , undo (context, HistoryButton::Way::undo)
    , redo (context, HistoryButton::Way::redo)
    , learn (context,
             "MidiLearn",
             { .text = controlText ("MidiLearn").label, .icon = "learn.svg", .accent = "Midi" },
             [this] { context.learning.setActive (! context.learning.isActive()); })
    , help (context,
            "Help",
            { .icon = "help.svg", .look = Look::quiet, .iconSize = "IconSizeHeader" },
            [this] { toggle<RoutingPopup> (context); })
    , settings (context,
                "Settings",
                { .icon = "settings.svg", .look = Look::quiet, .iconSize = "IconSizeHeader" },
                [this] { toggle<SettingsPopup> (context); })
{
    setTitle ("Presets, undo and settings");
    context.actions.help = [this] { help.click(); };
    context.actions.settings = [this] { settings.click(); };

    addAndMakeVisible (logo);
    presets.addTo (*this);
    presets.addKeys (context.actions);

    for (auto* part : std::initializer_list<juce::Component*> { &undo, &redo, &learn, &help, &settings })
        addAndMakeVisible (part);
}
} // namespace Zn::GUI
