#pragma once

#include "GUI/Player/SongChords.h"
#include "GUI/Widgets/Control.h"

namespace Zn::GUI
{
/** The chords of the player's file in a row, the one that plays lit. A click jumps there, where the clock is our own.
    Thread: message.
*/
class PlayerTimeline : public Control
{
public:
    explicit PlayerTimeline (EditorContext& contextToUse);

    /** The chord that is lit, -1 for none. */
    int getLit() const noexcept { return lit; }
    const std::vector<SongChord>& getChords() const noexcept { return chords; }

    /** Why there are none, or how to get some. */
    const juce::String& getNotice() const noexcept { return notice; }

    TooltipText getTooltipText() const override;
    void schemeChanged() override;
    void mouseMove (const juce::MouseEvent& event) override { pointAt (event.position); }
    void mouseExit (const juce::MouseEvent& event) override;
    void mouseDown (const juce::MouseEvent& event) override;
    bool keyPressed (const juce::KeyPress& key) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    struct Chip
    {
        juce::Rectangle<float> area;
        juce::String text; // as much as fits
    };

    void paintControl (juce::Graphics& g) override;
    void poll() override;
    bool showsHover() const override { return false; } // the chord under the pointer does
    void readSong();
    void layOut();
    bool canJump() const;
    double getPosition() const; // in the song, quarters; there is one
    int chordNow() const;
    int chordAt (juce::Point<float> position) const;
    void pointAt (juce::Point<float> position);
    void jumpTo (int chord);
    void repaintChip (int chord);

    std::shared_ptr<const Sequencer::MidiPlayer::Song> song;
    int middleC = 3;
    std::vector<SongChord> chords;
    std::vector<Chip> chips; // one for each chord
    juce::Font font;
    juce::String notice;
    int lit = -1, pointed = -1;
    bool isStale = false;
    Events::Listener listener;
};
} // namespace Zn::GUI
