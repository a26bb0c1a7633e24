#include "GUI/Presets/PresetBar.h"

#include "GUI/Pattern/Clipboard.h"
#include "GUI/Presets/PresetMenus.h"
#include "GUI/Presets/PresetPopup.h"
#include "GUI/Presets/SavePopup.h"

namespace Zn::GUI
{
PresetBar::PresetBar (EditorContext& contextToUse, PresetKind kind)
    : context (contextToUse)
    , actions (contextToUse, kind)
    , previous (context, kind.element ("Previous"), { .icon = "previous.svg" }, [this] { step (-1); })
    , next (context, kind.element ("Next"), { .icon = "next.svg" }, [this] { step (1); })
    , name (context,
            actions,
            { .openBrowser = [this] { openBrowser(); },
              .showMenu = [this] { showMenu(); },
              .isBrowserOpen = [this] { return isBrowserOpen(); } })
    , saveButton (context, kind.element ("Save"), {}, [this] { save(); })
    , menuButton (context, kind.element ("Menu"), { .icon = "menu.svg" }, [this] { showMenu(); })
{}

PresetBar::~PresetBar() = default;

void PresetBar::addTo (juce::Component& band)
{
    for (auto* part :
         std::initializer_list<juce::Component*> { &previous, &next, &name, &saveButton, &menuButton })
        band.addAndMakeVisible (part);
}

void PresetBar::addKeys (PageActions& keys)
{
    keys.save = [this] { save(); };
    keys.saveAs = [this] { saveAs(); };
    keys.previousPreset = [this] { step (-1); };
    keys.nextPreset = [this] { step (1); };
    keys.searchPresets = [this] { openBrowser(); };
}

bool PresetBar::isBrowserOpen() const
{
    return browser != nullptr && context.overlay.getPopup() == browser;
}

void PresetBar::save()
{
    if (! actions.canSaveInPlace())
        return saveAs();

    // What is saved again keeps what it is, whatever was chosen for another.
    const auto file = *actions.getCurrentFile();
    write (file, actions.bringsSound (file));
}

void PresetBar::saveAs()
{
    context.overlay.openPopup (std::make_unique<SavePopup> (actions, [this] (const juce::File& file) {
        write (file, context.state().savesParams);
    }));
}

void PresetBar::write (const juce::File& file, bool withSound)
{
    const juce::ScopedValueSetter<bool> asTold (context.state().savesParams, withSound);
    const auto problem = actions.save (file);

    if (problem.isNotEmpty())
        context.overlay.showMessage (file.getFileNameWithoutExtension().quoted() + " was not saved. "
                                         + problem,
                                     "Retry",
                                     [this, file, withSound] { write (file, withSound); });
}

void PresetBar::openBrowser()
{
    auto popup = std::make_unique<PresetPopup> (actions, previews, [this] { saveAs(); });
    browser = popup.get();
    context.overlay.openPopup (std::move (popup));
}

void PresetBar::showMenu()
{
    const auto canPaste = actions.isPreset (Clipboard::getText());
    context.overlay.showMenu (presetMenu (actions.getKind(), canPaste), &menuButton, [this] (int command) {
        choose (command);
    });
}

void PresetBar::choose (int command)
{
    switch (static_cast<PresetCommand> (command))
    {
    case PresetCommand::saveAs:
        return saveAs();
    case PresetCommand::loadDefault:
        return actions.loadDefault();
    case PresetCommand::loadInit:
        return actions.loadInit();
    case PresetCommand::randomise:
        return actions.randomiseSound();
    case PresetCommand::copy:
        return Clipboard::setText (actions.toText());
    case PresetCommand::paste:
        actions.loadText (Clipboard::getText());
        return;
    case PresetCommand::showFolder:
        return actions.showFolder();
    case PresetCommand::rescan:
        return actions.rescan();
    case PresetCommand::none:
        break;
    }
}
} // namespace Zn::GUI
