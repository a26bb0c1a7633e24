#pragma once

#include "GUI/Pattern/PlayPlace.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Pattern/ScaledImage.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <functional>

namespace Zn::GUI
{
/** The play head: a line over ruler, roll and lane with a head at the top and a fading trail behind it.

    Moves with the screen's own clock while there is something to show, and rests else: then nothing is called but the
    editor's regular look. Repaints where it was and where it is. The component itself covers the whole track and stays
    there: for each move of a component JUCE waits for an answer of the window system. Thread: message.
*/
class PlayLine : public juce::Component
{
public:
    explicit PlayLine (RollContext& contextToUse);

    /** Told of each new place, of any slot; none when the clock has stopped. */
    std::function<void (const std::optional<PlayPlace>&)> moved;

    /** The scheme or the size has changed. In the parent: from the ruler's top to the lane's foot, and of that the roll.
    */
    void setTrack (juce::Rectangle<int> newTrack, juce::Rectangle<int> newRoll);

    /** What line, head and trail take of the track; empty while there is nothing to show. */
    juce::Rectangle<int> getDrawn() const noexcept { return drawn; }

    /** Looks where the clock is now. */
    void look();

    void paint (juce::Graphics& g) override;

private:
    void followClock();
    void answerFrame();
    void place (const std::optional<PlayPlace>& newPlace);
    juce::Rectangle<int> moveLine (const std::optional<PlayPlace>& newPlace);
    void paintTrail (juce::Graphics& g);
    void fillTrail (juce::Graphics& g) const;

    RollContext& context;
    juce::Rectangle<int> track, roll, drawn;
    juce::Path head; // around x 0, from the track's top
    int stroke = 1, trailLength = 0, headRadius = 0, linePixel = 0;
    juce::Colour lineColour, trailColour;
    juce::Rectangle<int> wholeTrail; // at the track's beginning it is shorter
    ScaledImage trail { [this] (auto& g) { fillTrail (g); }, juce::Image::ARGB };

    std::optional<PlayPlace> lastPlace;
    juce::uint32 lastFrame = 0; // milliseconds
    juce::VBlankAttachment frames;
    Events::Listener pollListener, viewListener, slotListener;
};
} // namespace Zn::GUI
