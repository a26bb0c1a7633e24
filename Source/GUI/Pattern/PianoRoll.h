#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/PlayPlace.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Pattern/RollMouse.h"
#include "GUI/Pattern/RollPicture.h"

namespace Zn::GUI
{
/** The drawing itself: rows of the held chord over the time of the pattern. Thread: message. */
class PianoRoll : public AssetScheme::Element<>
{
public:
    explicit PianoRoll (RollContext& contextToUse);

    /** Lights the notes that the play head is in. */
    void showPlace (const std::optional<PlayPlace>& newPlace);

    const RollPicture& getPicture() const noexcept { return picture; }

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;

    void mouseMove (const juce::MouseEvent& event) override { mouse.move (event); }
    void mouseExit (const juce::MouseEvent&) override { mouse.leave(); }
    void mouseDown (const juce::MouseEvent& event) override { mouse.down (event); }
    void mouseDrag (const juce::MouseEvent& event) override { mouse.drag (event); }
    void mouseUp (const juce::MouseEvent& event) override { mouse.up (event); }
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override
    {
        mouse.turnWheel (event, wheel);
    }
    void mouseMagnify (const juce::MouseEvent& event, float factor) override
    {
        context.view.zoomTime (double (factor), double (event.position.x));
    }

private:
    void refresh();
    GridLook gridLook() const;
    std::vector<NoteLook> noteLooks() const;
    void addGhosts (std::vector<NoteLook>& looks) const;
    void addNotes (std::vector<NoteLook>& looks) const;
    bool isSounding (int note) const;
    bool isElsewhere() const;
    void findSounding();
    const std::vector<Sequencer::TimedNote>& heardNotes() const;
    juce::Rectangle<int> lassoBounds() const;
    void paintLasso (juce::Graphics& g) const;

    RollContext& context;
    RollPicture picture;
    RollMouse mouse;
    juce::Font font;
    juce::Rectangle<int> paintedLasso;
    bool isEmpty = false;

    std::optional<PlayPlace> place;
    std::vector<int> sounding, lastSounding; // notes of the slot that is heard

    std::vector<std::unique_ptr<Events::Listener>> listeners;
};
} // namespace Zn::GUI
