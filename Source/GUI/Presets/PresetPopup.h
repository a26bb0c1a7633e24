#pragma once

#include "GUI/Presets/PresetGroupList.h"
#include "GUI/Presets/PresetList.h"
#include "GUI/Presets/TextField.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Divider.h"
#include "GUI/Widgets/Popup.h"

namespace Zn::GUI
{
/** The browser of the presets of one library: what is typed is searched for, the arrow keys choose, Enter loads and,
    once more, closes. Thread: message.
*/
class PresetPopup : public Popup
{
public:
    /** Actions and previews outlive it. */
    PresetPopup (PresetActions& actionsToUse, PresetPreviews& previewsToShow, CallbackFunc saveAs);

    bool keyPressed (const juce::KeyPress& key) override;

private:
    bool answerSearchKey (const juce::KeyPress& key);
    void answerTyping();
    void showFound();
    void poll();
    void rebuild();
    juce::String hintOf (const PresetGroup& group) const;

    PresetActions& actions;
    PresetPreviews& previews;

    PresetCatalogue catalogue;
    std::vector<Presets::PresetEntry> listed; // what the catalogue was made of
    juce::StringArray favourites;
    PresetGroup groupBeforeSearch;
    juce::String words;
    bool isStale = false;

    TextField search;
    PresetGroupList groups;
    PresetList list;
    Divider divider;
    Button loadDefault, loadInit, showFolder, saveAsButton;

    Events::Listener libraryListener, settingsListener, pollListener;
};
} // namespace Zn::GUI
