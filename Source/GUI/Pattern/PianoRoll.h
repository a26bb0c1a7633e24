#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/NoteCells.h"
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

    /** Asked for each key while the roll has the focus; whether it was one of its own. */
    std::function<bool (const juce::KeyPress&)> keyAsked;

    /** Called when a key has brought the focus: something has to show it. */
    CallbackFunc focusShown = [] {};

    const RollPicture& getPicture() const noexcept { return picture; }

    /** The cell cursor's place; empty while it is not shown. */
    juce::Rectangle<int> getCursorBounds() const noexcept { return paintedCursor; }

    void paint (juce::Graphics& g) override;
    void schemeChanged() override;

    void mouseMove (const juce::MouseEvent& event) override { mouse.move (event); }
    void mouseExit (const juce::MouseEvent&) override { mouse.leave(); }
    void mouseDown (const juce::MouseEvent& event) override
    {
        setKeysInUse (false);
        mouse.down (event);
    }
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

    bool keyPressed (const juce::KeyPress& key) override;
    void focusGained (FocusChangeType cause) override;
    void focusLost (FocusChangeType) override { refresh(); }
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override
    {
        return cells.createTable();
    }

    /** Whether its focus is to be seen. */
    void setKeysInUse (bool areInUse);

private:
    void refresh();
    bool showsFocus() const { return context.editor.keysInUse && hasKeyboardFocus (false); }
    float cursorLine() const; // pixels
    void followCell();
    void followLasso();
    juce::Rectangle<int> boundsOfCursor() const;
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
    NoteCells cells;
    juce::Font font;
    juce::Rectangle<int> paintedLasso, paintedCursor;
    bool isEmpty = false;

    std::optional<PlayPlace> place;
    std::vector<int> sounding, lastSounding; // notes of the slot that is heard

    std::vector<std::unique_ptr<Events::Listener>> listeners;
};
} // namespace Zn::GUI
