#include "GUI/Pattern/Ruler.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <cmath>

namespace Zn::GUI
{
Ruler::Ruler (RollContext& contextToUse)
    : Element (contextToUse.editor.canvas, "Ruler")
    , context (contextToUse)
    , picture ([this] (juce::Graphics& g) { paintBeats (g); })
    , drawingListener (contextToUse.pattern.drawingChanged, [this] { refresh(); })
    , viewListener (contextToUse.view, [this] { refresh(); })
{
    setOpaque (true);
    setTitle ("Ruler");
}

void Ruler::refresh()
{
    const Look newLook { .geometry = context.view.get(),
                         .beats = RollBeats::of (context.pattern.getDrawing()) };

    if (newLook.beats == look.beats && newLook.geometry.time == look.geometry.time
        && newLook.geometry.size == look.geometry.size)
        return;

    look = newLook;
    picture.invalidate();
    repaint();
}

void Ruler::schemeChanged()
{
    font = getCanvas().fontOf ("FontSmall", AssetScheme::Cut::bold);
    picture.invalidate();
    refresh();
}

void Ruler::paintBeats (juce::Graphics& g) const
{
    const auto& scheme = AssetScheme::Base::get();
    const auto& canvas = context.editor.canvas;
    const auto& geometry = look.geometry;
    const auto& beats = look.beats;
    const auto line = std::max (1, juce::roundToInt (canvas.pixelsOf ("HairlineStroke")));

    g.fillAll (scheme.colourOf ("Inset"));
    g.setColour (scheme.colourOf ("Hairline"));
    g.fillRect (getLocalBounds().removeFromTop (line));
    g.fillRect (getLocalBounds().removeFromBottom (line));

    constexpr auto shortTick = 0.27, longTick = 0.44; // of the height
    const auto paintTicks = [&] (double perPattern, double least, double height) {
        const auto stride = beats.strideFor (geometry.pixelsPerTime() / perPattern, least);
        const auto top = juce::roundToInt (getHeight() * (1.0 - height));
        const auto first = static_cast<int> (geometry.time.getStart() * perPattern) / stride * stride;
        g.setColour (scheme.colourOf ("GridBar"));

        for (auto index = first; index <= geometry.time.getEnd() * perPattern; index += stride)
            g.fillRect (geometry.pixelOf (index / perPattern), top, line, getHeight() - top);

        return std::pair (first, stride);
    };

    const auto columnWidth = double (scheme.constantOf ("ColumnWidthMinimum"));
    const auto numberWidth = 2.5 * double (font.getHeight());
    paintTicks (geometry.grid, columnWidth, shortTick);
    const auto [first, stride] = paintTicks (beats.quarters, numberWidth, longTick);

    g.setColour (scheme.colourOf ("TextSecondary"));
    g.setFont (font);
    const auto pad = juce::roundToInt (canvas.pixelsOf ("NoteInset") * 5.0f);

    for (auto beat = first; beat < geometry.time.getEnd() * beats.quarters; beat += stride)
        g.drawText (juce::String (beat + 1),
                    juce::Rectangle<int> (geometry.pixelOf (beats.timeOf (beat)) + pad,
                                          0,
                                          juce::roundToInt (numberWidth) - pad,
                                          getHeight()),
                    juce::Justification::centredLeft,
                    false);
}

void Ruler::mouseUp (const juce::MouseEvent& event)
{
    const auto time = std::clamp (context.view.get().timeAt (double (event.position.x)), 0.0, 1.0);

    if (event.mods.isPopupMenu())
    {
        if (menuAsked != nullptr)
            menuAsked();
    }
    else if (! event.mouseWasDraggedSinceMouseDown() && event.getNumberOfClicks() == 1)
        movePosition (time);
}

void Ruler::movePosition (double time)
{
    auto& state = context.editor.state();
    auto& clock = *state.playHead;

    if (! clock.isMovable())
        return;

    const auto& slot = state.patterns.getSlots()[static_cast<std::size_t> (context.editor.shownSlot.get())];
    const auto length = slot.length();
    const auto passed = slot.pattern.getEmitter().getPosition()->position.load(); // since the pattern's start
    const auto now = clock.positionPpq.load();
    const auto start = passed >= 0.0 ? now - passed : std::floor (now / length) * length;

    clock.moveTo (std::max (0.0, start) + time * length);
}
} // namespace Zn::GUI
