#pragma once

#include "GUI/Browser/BrowserPopup.h"
#include "GUI/Presets/PresetList.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Divider.h"

namespace Zn::GUI
{
/** The browser of the presets of one library: Enter loads and, once more, closes. Thread: message. */
class PresetPopup : public BrowserPopup
{
public:
    /** Actions and previews outlive it. */
    PresetPopup (PresetActions& actionsToUse, PresetPreviews& previewsToShow, CallbackFunc saveAs);

private:
    BrowserList& getList() override { return list; }
    void showGroups() override;
    void showFound() override;
    void markFound() override;
    void poll();
    void rebuild();
    PresetGroup getGroup() const;
    juce::String hintOf (const PresetGroup& group) const;

    PresetActions& actions;
    PresetPreviews& previews;

    PresetCatalogue catalogue;
    std::vector<Presets::PresetEntry> listed; // what the catalogue was made of
    juce::StringArray favourites;
    bool isStale = false;

    PresetList list;
    Divider divider;
    Button loadDefault, loadInit, showFolder, saveAsButton;

    Events::Listener libraryListener, settingsListener, pollListener;
};
} // namespace Zn::GUI
