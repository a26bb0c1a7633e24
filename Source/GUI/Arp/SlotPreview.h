#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/ScaledImage.h"
#include "Sequencer/PatternSlot.h"

#include <vector>

namespace Zn::GUI
{
/** The drawing of a slot in miniature, between its lowest and its highest row. Lets the pointer through.
    Thread: message.
*/
class SlotPreview : public AssetScheme::Element<>
{
public:
    /** The slot outlives it. */
    SlotPreview (AssetScheme::Canvas& canvasToLieOn, int slotIndex, const Sequencer::PatternSlot& slotToShow);

    /** Looks whether the drawing is still what is shown, and draws it anew if not. Whether it was. */
    bool update();

    /** What plays is brighter. */
    void setBright (bool shouldBeBright);

    bool isEmpty() const noexcept { return steps.empty(); }
    int getNumNotes() const noexcept { return static_cast<int> (steps.size()); }

    void paint (juce::Graphics& g) override;
    void schemeChanged() override { picture.invalidate(); }

private:
    using Steps = std::vector<Sequencer::TimedNote>;

    const Sequencer::PatternSlot& slot;
    Steps steps; // what is shown
    ScaledImage picture;
    bool isBright = false;
};
} // namespace Zn::GUI
