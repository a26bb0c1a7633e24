#pragma once

#include "GUI/Browser/TextField.h"
#include "GUI/Presets/CategoryParam.h"
#include "GUI/Presets/PresetActions.h"
#include "GUI/Widgets/Button.h"
#include "GUI/Widgets/Choice.h"
#include "GUI/Widgets/FormContext.h"
#include "GUI/Widgets/Label.h"
#include "GUI/Widgets/Popup.h"
#include "GUI/Widgets/Toggle.h"

#include <functional>
#include <optional>

namespace Zn::GUI
{
/** Asks for the name of a preset, its folder, and whether the sound goes with it. What is chosen here is no edit of the
    model, and leaves no step of undo. Thread: message.
*/
class SavePopup : public Popup
{
public:
    /** `save` is given the file, once the pop-up is closed. */
    SavePopup (PresetActions& actionsToUse, std::function<void (const juce::File&)> saveTo);

    void paint (juce::Graphics& g) override;
    bool keyPressed (const juce::KeyPress& key) override;

private:
    juce::File getTarget() const;
    void update();
    void confirm();
    void askForCategory();

    PresetActions& actions;
    const std::function<void (const juce::File&)> save;

    FormContext form;

    bool withSound;
    std::shared_ptr<CategoryParam> category;

    Label nameLabel;
    TextField name;
    Label categoryLabel;
    Choice categoryField;
    std::optional<Toggle> withSoundToggle; // patterns only
    Button cancelButton, confirmButton;

    Events::Listener pollListener;
};
} // namespace Zn::GUI
