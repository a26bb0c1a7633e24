#include "GUI/Sound/Picture.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
Picture::Picture (EditorContext& contextToUse, std::string element)
    : Control (contextToUse, std::move (element))
{
    setWantsKeyboardFocus (false);
}

Picture::~Picture()
{
    if (drag)
        context.overlay.hideReadout();
}

void Picture::schemeChanged()
{
    const auto inset = pixels ("PictureInset");
    const auto corner = context.canvas.cornerOf ("PictureCorner", area());

    drawn = area().reduced (inset, inset);
    handleRadius = pixels ("CurveHandle");
    lineWidth = pixels ("ThinStroke");
    frame.clear();
    frame.addRoundedRectangle (area(), corner);
    takeInputs (true);
    setDescription (describe());
}

void Picture::poll()
{
    if (! takeInputs (false))
        return;

    setDescription (describe());
    repaint();
}

void Picture::paintControl (juce::Graphics& g)
{
    g.setColour (colour ("Inset"));
    g.fillPath (frame);

    const juce::Graphics::ScopedSaveState state (g);
    g.reduceClipRegion (frame);
    paintPicture (g);
}

void Picture::paintHandles (juce::Graphics& g) const
{
    for (std::size_t i = 0; i < handles.size(); ++i)
    {
        const auto circle =
            juce::Rectangle<float> (handleRadius * 2.0f, handleRadius * 2.0f).withCentre (handles[i]);
        g.setColour (colour (isDragged (i) || (pointed == i && isEnabled()) ? "Sound" : "Inset"));
        g.fillEllipse (circle);
        g.setColour (colour ("Sound"));
        g.drawEllipse (circle, lineWidth);
    }
}

bool Picture::isDragged (std::size_t handle) const noexcept
{
    return drag && drag->handle == handle;
}

std::size_t Picture::handleAt (juce::Point<float> position) const
{
    const auto nearest = std::ranges::min_element (handles, {}, [position] (auto place) {
        return place.getDistanceSquaredFrom (position);
    });
    return nearest == handles.end() ? 0 : static_cast<std::size_t> (nearest - handles.begin());
}

void Picture::point (std::optional<std::size_t> handle)
{
    if (std::exchange (pointed, handle) != handle)
        repaint();
}

void Picture::mouseMove (const juce::MouseEvent& event)
{
    if (! handles.empty())
        point (handleAt (event.position));
}

void Picture::mouseExit (const juce::MouseEvent& event)
{
    Control::mouseExit (event);
    point ({});
}

void Picture::mouseDown (const juce::MouseEvent& event)
{
    const auto handle = handleAt (event.position);

    if (event.mods.isPopupMenu() || ! isEnabled() || drag)
        return;

    if (event.mods.isCommandDown())
        return resetToDefaults (handle);

    drag.emplace (Drag { handle,
                         handles.empty() ? juce::Point<float>() : handles[handle],
                         event.position,
                         context.edits.begin (getText().title),
                         {} });

    for (const auto& parameter : parametersOf (handle))
        drag->edits.push_back (std::make_unique<ParameterEdit> (context.edits, parameter, getText().title));

    focus.emplace (*this);
    dragBegins (handle);
    repaint();
}

void Picture::mouseDrag (const juce::MouseEvent& event)
{
    if (! drag)
        return;

    const auto fineness =
        event.mods.isShiftDown() ? AssetScheme::Base::get().constantOf ("KnobFineFactor") : 1.0f;
    drag->place += (event.position - drag->pointer) * fineness;
    drag->pointer = event.position;

    moveHandle (drag->handle, drag->place);
    poll();
    showReadout (event.getScreenPosition());
}

void Picture::mouseUp (const juce::MouseEvent&)
{
    endDrag();
}

void Picture::mouseDoubleClick (const juce::MouseEvent& event)
{
    endDrag();

    if (! event.mods.isPopupMenu() && isEnabled())
        resetToDefaults (handleAt (event.position));
}

bool Picture::keyPressed (const juce::KeyPress& key)
{
    if (! drag || key != juce::KeyPress (juce::KeyPress::escapeKey))
        return false;

    for (auto& edit : drag->edits)
        edit->restore();

    endDrag();
    return true;
}

void Picture::resetToDefaults (std::size_t handle)
{
    context.edits.perform (getText().title, [this, handle] {
        auto changed = false;

        for (const auto& parameter : parametersOf (handle))
            changed |= changeAtOnce (*parameter, [] (auto& changing) {
                changing.setNormalisedNotifying (changing.getDefault());
            });

        return changed;
    });
    poll();
}

void Picture::endDrag()
{
    if (! drag)
        return;

    drag.reset();
    context.overlay.hideReadout();
    focus.reset();
    poll();
    repaint();
}

void Picture::showReadout (juce::Point<int> onScreen)
{
    const auto [name, value] = readoutOf (drag->handle);
    context.overlay.showReadout (name, value, onScreen);
}

std::unique_ptr<juce::AccessibilityHandler> Picture::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::image);
}

juce::FillType fillUnder (juce::Rectangle<float> area)
{
    constexpr auto atTop = 2.0f, atBottom = 0.14f; // of the colour that an even fill would have
    const auto even = AssetScheme::Base::get().colourOf ("CurveFill");
    return juce::ColourGradient::vertical (even.withMultipliedAlpha (atTop),
                                           area.getY(),
                                           even.withMultipliedAlpha (atBottom),
                                           area.getBottom());
}

juce::Path pathThrough (const std::vector<juce::Point<float>>& points)
{
    juce::Path path;
    path.preallocateSpace (static_cast<int> (points.size()) * 3 + 8);

    for (std::size_t i = 0; i < points.size(); ++i)
        if (i == 0)
            path.startNewSubPath (points[i]);
        else
            path.lineTo (points[i]);

    return path;
}

juce::Path pathDownTo (const std::vector<juce::Point<float>>& points, float level)
{
    auto path = pathThrough (points);

    if (! points.empty())
    {
        path.lineTo (points.back().x, level);
        path.lineTo (points.front().x, level);
        path.closeSubPath();
    }

    return path;
}
} // namespace Zn::GUI
