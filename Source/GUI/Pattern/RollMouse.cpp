#include "GUI/Pattern/RollMouse.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Framework/SVGPainter.h"

#include <algorithm>

namespace Zn::GUI
{
namespace
{
/** How far a position lies beyond a range; below 0 ahead of it. */
float beyond (float position, float length)
{
    return position < 0.0f ? position : std::max (0.0f, position - length);
}
} // namespace

RollMouse::RollMouse (RollContext& contextToUse, juce::Component& rollToServe)
    : context (contextToUse)
    , roll (rollToServe)
    , pollListener (contextToUse.editor.polls, [this] { scrollAtEdge(); })
    , brushListener (contextToUse.editor.state().brush, [this] { followBrush(); })
{}

RollPointer RollMouse::pointerAt (juce::Point<float> position) const
{
    const auto& geometry = context.view.get();
    const auto hit = geometry.hit (position, context.pattern.getDrawing().notes);
    const auto row = geometry.boundsOfRow (geometry.rowAt (double (position.y)));

    constexpr auto justInside = 1.0 - 1.0e-6; // the upper edge belongs to the row
    const auto height = (row.getBottom() - double (position.y)) / std::max (1, row.getHeight());

    return { .at = { .time = geometry.timeAt (double (position.x)),
                     .row = geometry.rowAt (double (position.y)) + std::clamp (height, 0.0, justInside) },
             .note = hit.note,
             .isAtEnd = hit.part == RollGeometry::Part::end,
             .moved = {},
             .modifiers = lastModifiers };
}

RollPointer RollMouse::pointerOf (const juce::MouseEvent& event) const
{
    auto pointer = pointerAt (event.position);
    pointer.moved = event.position - pressed;
    pointer.modifiers = event.mods;
    pointer.numClicks = event.getNumberOfClicks();
    return pointer;
}

void RollMouse::move (const juce::MouseEvent& event)
{
    auto pointer = pointerOf (event);
    pointer.moved = {};
    context.tools.hover (pointer);
    showCursor (context.tools.cursorAt (pointer));
}

/** A key has brought another tool. */
void RollMouse::followBrush()
{
    if (! roll.isMouseOver() || panStart)
        return;

    auto pointer = pointerAt (roll.getMouseXYRelative().toFloat());
    pointer.modifiers = juce::ModifierKeys::getCurrentModifiers();
    showCursor (context.tools.cursorAt (pointer));
}

void RollMouse::leave()
{
    if (! context.tools.isDragging())
        context.tools.leave();
}

void RollMouse::down (const juce::MouseEvent& event)
{
    pressed = last = event.position;
    lastModifiers = event.mods;

    if (roll.isShowing())
        roll.grabKeyboardFocus();

    if (event.mods.isMiddleButtonDown())
    {
        panStart = context.view.get();
        showCursor (RollCursor::hand);
        return;
    }

    const auto pointer = pointerOf (event);
    context.tools.down (pointer);
    showCursor (context.tools.cursorAt (pointer));
    showReadout (event);
}

void RollMouse::drag (const juce::MouseEvent& event)
{
    last = event.position;
    lastModifiers = event.mods;

    if (panStart)
        return pan (event.position);

    const auto pointer = pointerOf (event);
    context.tools.drag (pointer);
    showCursor (context.tools.cursorAt (pointer));
    showReadout (event);
}

void RollMouse::up (const juce::MouseEvent& event)
{
    context.editor.overlay.hideReadout();

    if (std::exchange (panStart, std::nullopt))
        return;

    const auto pointer = pointerOf (event);
    context.tools.up (pointer);
    context.tools.hover (pointer);
    showCursor (context.tools.cursorAt (pointer));
}

void RollMouse::pan (juce::Point<float> position)
{
    const auto moved = position - pressed;
    context.view.set (panStart->scrolled (-double (moved.x) / panStart->pixelsPerTime(),
                                          double (moved.y) / panStart->rowHeight));
}

void RollMouse::turnWheel (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (event.mods.isAltDown())
    {
        constexpr auto smoothStep = 0.05f; // of a wheel that turns without notches, for a percent

        if (const auto percent = wheelSteps.upIn (wheel, smoothStep); percent != 0)
            context.tools.turnWheel (pointerOf (event), percent);

        return;
    }

    context.view.turnWheel (event, wheel, event.position.x);

    if (! context.tools.isDragging())
        context.tools.hover (pointerOf (event));
}

void RollMouse::scrollAtEdge()
{
    if (! context.tools.scrolls() || panStart)
        return;

    const auto away = juce::Point<float> (beyond (last.x, float (roll.getWidth())),
                                          beyond (last.y, float (roll.getHeight())));

    if (away.isOrigin())
        return;

    constexpr auto share = 0.25; // of the way that the pointer is away, each time
    const auto before = context.view.get();
    context.view.set (before.scrolled (share * double (away.x) / before.pixelsPerTime(),
                                       -share * double (away.y) / before.rowHeight));

    if (context.view.get() == before)
        return;

    auto pointer = pointerAt (last);
    pointer.moved = last - pressed;
    context.tools.drag (pointer);
}

void RollMouse::showReadout (const juce::MouseEvent& event)
{
    if (const auto readout = context.tools.getReadout(); readout.name.isNotEmpty())
        context.editor.overlay.showReadout (readout.name, readout.value, event.getScreenPosition());
    else
        context.editor.overlay.hideReadout();
}

void RollMouse::showCursor (RollCursor cursor)
{
    if (shownCursor == cursor || roll.getPeer() == nullptr)
        return;

    shownCursor = cursor;

    switch (cursor)
    {
    case RollCursor::pencil:
        if (pencil == juce::MouseCursor())
            pencil = makePencil();

        return roll.setMouseCursor (pencil);
    case RollCursor::cross:
        return roll.setMouseCursor (juce::MouseCursor::CrosshairCursor);
    case RollCursor::hand:
        return roll.setMouseCursor (juce::MouseCursor::DraggingHandCursor);
    case RollCursor::sideways:
        return roll.setMouseCursor (juce::MouseCursor::LeftRightResizeCursor);
    case RollCursor::upDown:
        return roll.setMouseCursor (juce::MouseCursor::UpDownResizeCursor);
    case RollCursor::arrow:
        break;
    }

    roll.setMouseCursor (juce::MouseCursor::NormalCursor);
}

juce::MouseCursor RollMouse::makePencil() const
{
    constexpr auto size = 20; // pixels, as other pointers
    constexpr auto tip = juce::Point<int> (3, 16);
    const auto& scheme = AssetScheme::Base::get();

    juce::Image image (juce::Image::ARGB, size, size, true);
    juce::Graphics g (image);
    SVGPainter icon ("pencil.svg");
    const auto area = juce::Rectangle<int> (size, size).toFloat();

    for (auto x : { -1.0f, 1.0f }) // a dark edge, to be seen on notes
        for (auto y : { -1.0f, 1.0f })
            icon.paint (g, area.translated (x, y), scheme.colourOf ("Roll"));

    icon.paint (g, area, scheme.colourOf ("Text"));
    return { image, tip.x, tip.y };
}
} // namespace Zn::GUI
