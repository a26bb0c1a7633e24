#pragma once

#include "GUI/Arp/SlotPreview.h"
#include "GUI/Framework/SVGPainter.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** One of the eight patterns: its number, its picture, and whether it plays, waits or is open for editing. What is
    done to it goes to its owner. Thread: message.
*/
class SlotTile : public Control
{
public:
    struct Owner
    {
        virtual ~Owner() = default;
        virtual void tilePressed (SlotTile& tile, const juce::MouseEvent& event) = 0;
        virtual void tileDragged (SlotTile& tile, const juce::MouseEvent& event) = 0;
        virtual void tileReleased (SlotTile& tile, const juce::MouseEvent& event) = 0;
        virtual bool tileKeyPressed (SlotTile& tile, const juce::KeyPress& key) = 0;
        virtual void tileChosen (SlotTile& tile) = 0; // by other means than the mouse and keys
    };

    struct Look
    {
        bool plays = false;
        bool isShown = false;   // open for editing
        bool isPending = false; // plays next
        bool takesDrop = false;
        bool flashes = false; // has just begun anew

        bool operator== (const Look&) const = default;
    };

    SlotTile (EditorContext& contextToUse, Owner& ownerToTell, int slotIndex);

    int getIndex() const noexcept { return index; }
    const Look& getLook() const noexcept { return look; }
    SlotPreview& getPreview() noexcept { return preview; }

    /** Repaints if something has changed, and says so. */
    bool setLook (const Look& newLook);

    /** How far the pattern has come, 0..1. Repaints the line when it moves by a pixel. */
    void setProgress (double newProgress);

    /** 0..1: how bright the edge of a pattern that waits is. */
    void setPulse (float newPulse);

    /** The picture is another one. */
    void patternChanged();

    /** What lies outside of the tile, in its parent; the parent paints it over all tiles. */
    void paintEdge (juce::Graphics& g) const;
    juce::Rectangle<int> edgeBounds() const;

    std::optional<Learning::Target> getLearnTarget() const override
    {
        return Learning::Target::forSlot (index);
    }
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override { owner.tileDragged (*this, event); }
    void mouseUp (const juce::MouseEvent& event) override { owner.tileReleased (*this, event); }
    bool keyPressed (const juce::KeyPress& key) override;
    void schemeChanged() override;
    TooltipText getTooltipText() const override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

    /** As "Pattern 2, playing, 22 notes". */
    juce::String describe() const;

private:
    void paintControl (juce::Graphics& g) override;
    void paintHead (juce::Graphics& g);
    void paintPendingEdge (juce::Graphics& g) const;
    juce::Rectangle<int> progressBounds() const;

    Owner& owner;
    const int index;
    const juce::String number;
    SlotPreview preview;
    SVGPainter playIcon { "play.svg" }, plusIcon { "plus.svg" };

    Look look;
    float pulse = 1.0f;
    int progressWidth = 0; // pixels

    juce::Font numberFont, nextFont;
    juce::Path shape, pendingEdge;
};
} // namespace Zn::GUI
