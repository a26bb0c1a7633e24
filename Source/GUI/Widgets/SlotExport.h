#pragma once

#include "GUI/Widgets/EditorContext.h"

#include <memory>

namespace Zn::GUI
{
/** Takes patterns out of the editor as MIDI files, by a drag into the host or a dialogue. Thread: message. */
class SlotExport
{
public:
    explicit SlotExport (EditorContext& contextToUse) : context (contextToUse) {}

    /** Goes on with a drag that has left the editor, or began on a button for it, as that of a file. */
    void drag (int slot, juce::Component& source);

    /** Asks for a place, without holding anything up. */
    void saveAs (int slot);

private:
    juce::String fileName (int slot) const;
    bool canWrite (int slot) const;

    /** Whether it is written; tells why not. */
    bool save (int slot, const juce::File& file);
    juce::Result write (int slot, const juce::File& file) const;

    EditorContext& context;
    std::unique_ptr<juce::FileChooser> chooser; // closes with the editor
};
} // namespace Zn::GUI
