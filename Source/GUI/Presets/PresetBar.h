#pragma once

#include "GUI/Presets/PresetName.h"
#include "GUI/Presets/PresetPreviews.h"
#include "GUI/Widgets/Button.h"

namespace Zn::GUI
{
/** The buttons of one library of presets: previous, next, the name, save, and a menu. A member of the band that they lie
    on. Thread: message.
*/
class PresetBar
{
public:
    PresetBar (EditorContext& contextToUse, PresetKind kind);
    ~PresetBar();

    void addTo (juce::Component& band);

    /** Has the keys of the page do what it does. */
    void addKeys (PageActions& keys);

    /** Writes over the user's own preset; of any other it asks for a name. */
    void save();
    void saveAs();
    void step (int direction) { actions.step (direction); }
    void openBrowser();

    PresetActions& getActions() noexcept { return actions; }

private:
    void write (const juce::File& file, bool withSound);
    void showMenu();
    void choose (int command);
    bool isBrowserOpen() const;

    EditorContext& context;
    PresetActions actions;
    PresetPreviews previews;
    juce::Component::SafePointer<juce::Component> browser;

    Button previous, next;
    PresetName name;
    Button saveButton, menuButton;
};
} // namespace Zn::GUI
