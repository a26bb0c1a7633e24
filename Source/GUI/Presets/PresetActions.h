#pragma once

#include "GUI/Presets/PresetCatalogue.h"
#include "GUI/Presets/PresetKind.h"
#include "GUI/Widgets/EditorContext.h"

#include <optional>

namespace Zn::GUI
{
/** All that can be done with the presets of one library, for whichever button, menu or key it is asked by.

    What goes wrong with a file is told in words, which are empty if all is well. Each change of the model is one step of
    undo. Thread: message.
*/
class PresetActions
{
public:
    PresetActions (EditorContext& contextToUse, PresetKind kindToUse);

    const PresetKind& getKind() const noexcept { return kind; }
    EditorContext& getContext() noexcept { return context; }
    Presets::Base& getLibrary() noexcept { return kind.library; }

    /** The file of the preset that is loaded, if it is still in a folder of the library. */
    std::optional<juce::File> getCurrentFile();

    /** Whether a file is refused is what the library says of it; then nothing changes. */
    bool load (const juce::File& file);
    void step (int direction);
    void loadDefault();
    void loadInit();
    void randomiseSound();

    /** The preset as it is now, for the clipboard, and back. Text that is none of our presets changes nothing. */
    juce::String toText();
    bool isPreset (const juce::String& text) const;
    bool loadText (const juce::String& text);

    /** Whether save() writes over a file of the user's without asking for a name. */
    bool canSaveInPlace();
    juce::String save (const juce::File& target);

    /** Whether a pattern preset that is saved already has a sound with it. */
    bool bringsSound (const juce::File& file) const;

    /** Searches the folders anew. */
    void rescan();
    void showFolder();

    juce::String rename (const juce::File& file, const juce::String& newName);

    /** To the bin. */
    juce::String remove (const juce::File& file);

    bool isFavourite (const juce::String& name) const;
    void setFavourite (const juce::String& name, bool shouldBeFavourite);

private:
    void makeReady();
    void renameFavourite (const juce::String& oldName, const juce::String& newName);

    EditorContext& context;
    const PresetKind kind;
};
} // namespace Zn::GUI
