#include "GUI/Widgets/SlotExport.h"

#include "Plugin/Vornel/ExportSlot.h"
#include "Presets/AtomicFile.h"

#include <string_view>

namespace Zn::GUI
{
namespace
{
/** With the ending that hosts know. The dialogue has asked about the name as it was typed, so a file that has the whole
    name is left alone.
*/
juce::File asMidiFile (const juce::File& typed)
{
    return typed.hasFileExtension ("mid;midi")
               ? typed
               : typed.getSiblingFile (typed.getFileName() + ".mid").getNonexistentSibling();
}
} // namespace

void SlotExport::drag (int slot, juce::Component& source)
{
    const auto file =
        juce::File::getSpecialLocation (juce::File::tempDirectory).getChildFile (fileName (slot));

    if (! canWrite (slot) || ! save (slot, file))
        return;

    context.draggedOut = file;
    juce::DragAndDropContainer::performExternalDragDropOfFiles ({ file.getFullPathName() }, false, &source);
}

bool SlotExport::canWrite (int slot) const
{
    const auto& pattern = context.state().patterns.getSlots()[static_cast<std::size_t> (slot)].pattern;

    if (pattern.steps.empty())
        context.overlay.showMessage ("This pattern is empty");

    return ! pattern.steps.empty();
}

void SlotExport::saveAs (int slot)
{
    if (! canWrite (slot))
        return;

    const auto folder = juce::File::getSpecialLocation (juce::File::userDocumentsDirectory);
    chooser =
        std::make_unique<juce::FileChooser> ("Save as MIDI", folder.getChildFile (fileName (slot)), "*.mid");

    constexpr auto flags = juce::FileBrowserComponent::saveMode | juce::FileBrowserComponent::canSelectFiles
                           | juce::FileBrowserComponent::warnAboutOverwriting;

    chooser->launchAsync (flags, [this, slot] (const juce::FileChooser& closed) {
        if (const auto chosen = closed.getResult(); chosen != juce::File())
            save (slot, asMidiFile (chosen));
    });
}

bool SlotExport::save (int slot, const juce::File& file)
{
    const auto result = write (slot, file);

    if (result.failed())
        context.overlay.showMessage (file.getFileName().quoted() + " was not saved. "
                                         + result.getErrorMessage(),
                                     "Retry",
                                     [this, slot] { saveAs (slot); });

    return result.wasOk();
}

juce::String SlotExport::fileName (int slot) const
{
    const auto preset = context.state().getName();
    return juce::File::createLegalFileName (preset + " slot " + juce::String (slot + 1) + ".mid").trim();
}

juce::Result SlotExport::write (int slot, const juce::File& file) const
{
    const auto midi = Audio::Plugins::Vornel::exportSlot (context.state(), slot);

    if (midi.getNumTracks() == 0)
        return juce::Result::fail ("The pattern is empty.");

    juce::MemoryOutputStream bytes;
    midi.writeTo (bytes);
    const std::string_view content { static_cast<const char*> (bytes.getData()), bytes.getDataSize() };

    return Presets::replaceFile (file, content, Presets::Durability::canBeMadeAgain)
               ? juce::Result::ok()
               : juce::Result::fail ("The file could not be written. Is the disk full?");
}
} // namespace Zn::GUI
