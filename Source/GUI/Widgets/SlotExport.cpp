#include "GUI/Widgets/SlotExport.h"

#include "Plugin/Vornel/ExportSlot.h"

namespace Zn::GUI
{
void SlotExport::drag (int slot, juce::Component& source)
{
    const auto file =
        juce::File::getSpecialLocation (juce::File::tempDirectory).getChildFile (fileName (slot));

    if (write (slot, file))
        juce::DragAndDropContainer::performExternalDragDropOfFiles ({ file.getFullPathName() },
                                                                    false,
                                                                    &source);
}

void SlotExport::saveAs (int slot)
{
    if (context.state().patterns.getSlots()[static_cast<std::size_t> (slot)].pattern.steps.empty())
        return context.overlay.showMessage ("This pattern is empty");

    const auto folder = juce::File::getSpecialLocation (juce::File::userDocumentsDirectory);
    chooser =
        std::make_unique<juce::FileChooser> ("Save as MIDI", folder.getChildFile (fileName (slot)), "*.mid");

    constexpr auto flags = juce::FileBrowserComponent::saveMode | juce::FileBrowserComponent::canSelectFiles
                           | juce::FileBrowserComponent::warnAboutOverwriting;

    chooser->launchAsync (flags, [this, slot] (const juce::FileChooser& closed) {
        const auto file = closed.getResult();

        if (file != juce::File() && ! write (slot, file.withFileExtension ("mid")))
            context.overlay.showMessage ("Cannot write " + file.getFileName(), "Retry", [this, slot] {
                saveAs (slot);
            });
    });
}

juce::String SlotExport::fileName (int slot) const
{
    const auto preset = context.state().getName();
    return juce::File::createLegalFileName (preset + " slot " + juce::String (slot + 1) + ".mid").trim();
}

bool SlotExport::write (int slot, const juce::File& file) const
{
    const auto midi = Audio::Plugins::Vornel::exportSlot (context.state(), slot);

    if (midi.getNumTracks() == 0)
        return false;

    // Whole or not at all: a file that was there stays until the new one is complete.
    const juce::TemporaryFile temporary (file);
    juce::FileOutputStream stream (temporary.getFile());

    if (! stream.openedOk() || ! midi.writeTo (stream))
        return false;

    stream.flush();
    return stream.getStatus().wasOk() && temporary.overwriteTargetFileWithTemporary();
}
} // namespace Zn::GUI
