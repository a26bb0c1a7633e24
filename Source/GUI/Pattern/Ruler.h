#pragma once

#include "GUI/Framework/AssetScheme/Element.h"
#include "GUI/Pattern/NoteQueries.h"
#include "GUI/Pattern/RollBeats.h"
#include "GUI/Pattern/RollContext.h"
#include "GUI/Pattern/ScaledImage.h"

namespace Zn::GUI
{
/** The beats over the roll. A click moves the internal clock there, a double click shows the whole pattern.
    Thread: message.
*/
class Ruler : public AssetScheme::Element<>
{
public:
    explicit Ruler (RollContext& contextToUse);

    /** Called for a click with the right button. */
    CallbackFunc menuAsked;

    const ScaledImage& getPicture() const noexcept { return picture; }

    void paint (juce::Graphics& g) override { picture.paint (g, getLocalBounds()); }
    void schemeChanged() override;
    void mouseUp (const juce::MouseEvent& event) override;
    void mouseDoubleClick (const juce::MouseEvent&) override
    {
        context.view.fit (NoteQueries::rowsOf (context.pattern.getDrawing().notes));
    }
    void mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel) override
    {
        context.view.turnWheel (event, wheel, event.position.x);
    }

private:
    struct Look
    {
        RollGeometry geometry;
        RollBeats beats;
    };

    void refresh();
    void paintBeats (juce::Graphics& g) const;
    void movePosition (double time);

    RollContext& context;
    Look look;
    ScaledImage picture;
    juce::Font font;
    Events::Listener drawingListener, viewListener;
};
} // namespace Zn::GUI
