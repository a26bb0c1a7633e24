#pragma once

#include "GUI/Browser/BrowserPopup.h"
#include "GUI/Sound/WavetableList.h"
#include "GUI/Widgets/ParameterEdit.h"

#include <optional>

namespace Zn::GUI
{
/** The browser of the wavetables for one oscillator: what is marked is heard at once, Enter and a click outside keep it,
    Esc brings back what was there. All of it is one step of undo and one gesture for the host. Thread: message.
*/
class WavetablePopup : public BrowserPopup
{
public:
    /** What other parts do about a table that is dragged away. */
    struct Callbacks
    {
        /** None: no longer. Whether a drop there would do anything. */
        std::function<bool (std::optional<juce::Point<int>> onScreen)> dragged;
        std::function<void (int table, juce::Point<int> onScreen)> dropped;
    };

    /** Comes up beside the card of the scheme. */
    WavetablePopup (EditorContext& contextToUse,
                    std::string cardElement,
                    std::shared_ptr<Parameters::Parameter> tableToChoose,
                    const juce::String& titleOfTable,
                    Callbacks callbacksToUse);
    ~WavetablePopup() override;

    /** For a press that goes on as a drag into the list: hears what is there. Whether anything is. */
    bool hearAt (juce::Point<int> onScreen) { return list.markAt (onScreen); }

    void keep();

protected:
    void schemeChanged() override;

private:
    BrowserList& getList() override { return list; }
    void showGroups() override;
    void showFound() override;
    void markFound() override {}
    void escape() override;

    void hear (int table);
    void take();
    bool drag (int table, juce::Point<int> onScreen);
    void drop (int table, juce::Point<int> onScreen);
    void endDrag();
    void poll();

    const std::string card;
    const std::shared_ptr<Parameters::Parameter> parameter;
    const juce::String stepName;
    const Callbacks callbacks;
    const NamedTables tables;

    std::optional<ParameterEdit> edit; // since something else was heard
    bool isDragging = false;           // one of its tables
    juce::Rectangle<int> cardPlace;
    WavetableList list;

    Events::Listener departure, pollListener;
};
} // namespace Zn::GUI
