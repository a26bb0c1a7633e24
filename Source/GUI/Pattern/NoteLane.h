#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/LaneHandles.h"
#include "GUI/Pattern/LaneTool.h"
#include "GUI/Pattern/NotePainter.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Pattern/ScaledImage.h"

namespace Zn::GUI
{
/** The velocity or the chance of each note, below the roll, as a handle to drag. Thread: message. */
class NoteLane : public AssetScheme::Element<>
{
public:
    explicit NoteLane (RollContext& contextToUse);

    const ScaledImage& getPicture() const noexcept { return picture; }

    void paint (juce::Graphics& g) override { picture.paint (g, getLocalBounds()); }
    void schemeChanged() override;

    /** Esc: takes back what the drag has done; false when there is none. */
    bool cancel();
    bool isDragging() const noexcept { return tool.isDragging(); }

    void mouseMove (const juce::MouseEvent& event) override;
    void mouseDown (const juce::MouseEvent& event) override;
    void mouseDrag (const juce::MouseEvent& event) override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override
    {
        context.view.turnWheel (event, wheel, event.position.x);
    }

private:
    void refresh();
    void refreshRamp();
    LanePointer pointerOf (const juce::MouseEvent& event) const;
    void showReadout (const juce::MouseEvent& event);
    void paintLane (juce::Graphics& g) const;
    void paintRamp (juce::Graphics& g) const;
    void paintHandle (juce::Graphics& g, const LaneHandle& handle) const;

    void
    paintSpread (juce::Graphics& g, const Sequencer::NoteEvent& event, float x, juce::Colour colour) const;

    RollContext& context;
    ScaledImage picture;
    NotePainter painter;
    LaneGeometry lane;
    std::vector<LaneHandle> handles;
    LaneTool tool;
    bool hasRamp = false;
    std::vector<std::unique_ptr<Events::Listener>> listeners;
};
} // namespace Zn::GUI
