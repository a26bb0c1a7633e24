#pragma once

#include "GUI/Widgets/EditorContext.h"

#include <cstdint>
#include <functional>

namespace Zn::GUI
{
/** What can be done to whole slots, 0..7. Each is one step of undo, and none if it changes nothing; the clipboard
    carries slots from one editor to another. Thread: message.
*/
class SlotEdits
{
public:
    explicit SlotEdits (EditorContext& contextToUse) noexcept : context (contextToUse) {}

    /** Whether the other slot plays otherwise now. */
    bool copyTo (int from, int to);
    void swap (int first, int second);

    /** Back to an empty drawing over one bar. */
    void clear (int slot);

    /** Erases the notes only, and says so with a way back. */
    void eraseNotes (int slot);

    void copyToClipboard (int slot) const;

    /** Whether the clipboard holds a slot. */
    bool canPaste() const;
    void paste (int slot);

    /** The rhythm of what was copied, on other rows; the same seed gives the same rows. */
    void pasteAsVariation (int slot, std::uint32_t seed);
    void pasteAsVariation (int slot);

private:
    Sequencer::PatternSlot& slot (int index) const;

    /** Whether anything plays otherwise now. */
    bool perform (const juce::String& name, const std::function<void()>& change);

    EditorContext& context;
};
} // namespace Zn::GUI
