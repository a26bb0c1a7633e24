#pragma once

#include "GUI/Arp/SlotTile.h"
#include "GUI/Pattern/SlotEdits.h"
#include "GUI/Widgets/GroupHandler.h"
#include "GUI/Widgets/NoEntryPointer.h"
#include "GUI/Widgets/SlotExport.h"

#include <array>
#include <memory>
#include <optional>

namespace Zn::GUI
{
/** The eight patterns, one stop of the keyboard's focus: click, keys, drags from one to another and out of the
    window, and a menu for each. Shows what the engine reports, not what was clicked. Thread: message.
*/
class SlotBank : public AssetScheme::Element<>, private SlotTile::Owner
{
public:
    explicit SlotBank (EditorContext& contextToUse);

    /** What lies around the tiles, for the band to paint over itself. */
    void paintEdges (juce::Graphics& g) const;

    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return groupHandler (*this);
    }

private:
    struct Drag
    {
        int from;
        std::optional<int> over = {};
        bool hasLeft = false; // the window, as a file
    };

    void tilePressed (SlotTile& tile, const juce::MouseEvent& event) override;
    void tileDragged (SlotTile& tile, const juce::MouseEvent& event) override;
    void tileReleased (SlotTile& tile, const juce::MouseEvent& event) override;
    bool tileKeyPressed (SlotTile& tile, const juce::KeyPress& key) override;
    void tileChosen (SlotTile& tile) override;

    void play (int slot);
    void open (int slot);
    void drop (int from, int onto, bool swaps);
    void showMenu (SlotTile& tile);
    void moveFocus (int from, int step);
    juce::MouseCursor pointerOver (juce::Point<int> inBank);

    void poll();
    void followPlayingSlot (int heard);
    void showStates();
    bool takeFlash (int slot, bool isHeard);
    double progressOf (int slot) const;
    void pulse();

    EditorContext& context;
    SlotEdits slotEdits { context };
    SlotExport slotExport { context };
    std::array<std::unique_ptr<SlotTile>, Sequencer::numSlots> tiles;
    std::array<double, Sequencer::numSlots> lastPositions {};   // quarter notes in each pattern
    std::array<juce::uint32, Sequencer::numSlots> flashEnds {}; // milliseconds, 0 none
    std::optional<Drag> dragged;
    NoEntryPointer noEntry;
    int lastHeard, announced; // of those that were heard

    Events::Listener polls, patterns, undone;
    Events::UpdateTimer pulses; // while a pattern waits
};
} // namespace Zn::GUI
