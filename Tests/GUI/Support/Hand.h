#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <stdexcept>

/** The mouse and the keys of somebody who uses the editor, without a window. */
namespace Zn::Tests::Hand
{
inline juce::Component* findOrNull (juce::Component& root, const juce::String& componentID)
{
    if (root.getComponentID() == componentID)
        return &root;

    for (auto* child : root.getChildren())
        if (auto* found = findOrNull (*child, componentID))
            return found;

    return nullptr;
}

template <typename ComponentType>
ComponentType& find (juce::Component& root, const juce::String& componentID)
{
    if (auto* found = dynamic_cast<ComponentType*> (findOrNull (root, componentID)))
        return *found;

    throw std::runtime_error (("The editor has no " + componentID).toStdString());
}

using Point = juce::Point<float>;

inline juce::MouseEvent mouseEvent (juce::Component& target,
                                    Point position,
                                    Point downPosition,
                                    juce::ModifierKeys modifiers,
                                    int numClicks = 1,
                                    bool wasDragged = false)
{
    const auto now = juce::Time::getCurrentTime();
    return { juce::Desktop::getInstance().getMainMouseSource(),
             position,
             modifiers,
             juce::MouseInputSource::defaultPressure,
             juce::MouseInputSource::defaultOrientation,
             juce::MouseInputSource::defaultRotation,
             juce::MouseInputSource::defaultTiltX,
             juce::MouseInputSource::defaultTiltY,
             &target,
             &target,
             now,
             downPosition,
             now,
             numClicks,
             wasDragged };
}

inline const juce::ModifierKeys leftButton { juce::ModifierKeys::leftButtonModifier };
inline const juce::ModifierKeys rightButton { juce::ModifierKeys::rightButtonModifier };

/** Presses, moves through all points and lets go at the last; positions lie in the target. */
inline void
drag (juce::Component& target, std::initializer_list<Point> points, juce::ModifierKeys modifiers = leftButton)
{
    const auto first = *points.begin();
    target.mouseMove (mouseEvent (target, first, first, modifiers.withoutMouseButtons()));
    target.mouseDown (mouseEvent (target, first, first, modifiers));

    for (auto point = points.begin() + 1; point != points.end(); ++point)
        target.mouseDrag (mouseEvent (target, *point, first, modifiers, 1, true));

    const auto last = *(points.end() - 1);
    target.mouseUp (mouseEvent (target, last, first, modifiers, 1, points.size() > 1));
}

inline void click (juce::Component& target, Point position, juce::ModifierKeys modifiers = leftButton)
{
    drag (target, { position }, modifiers);
}

/** In the middle. */
inline void click (juce::Component& target, juce::ModifierKeys modifiers = leftButton)
{
    click (target, target.getLocalBounds().toFloat().getCentre(), modifiers);
}

inline void doubleClick (juce::Component& target, Point position)
{
    click (target, position);
    target.mouseDown (mouseEvent (target, position, position, leftButton, 2));
    target.mouseDoubleClick (mouseEvent (target, position, position, leftButton, 2));
    target.mouseUp (mouseEvent (target, position, position, leftButton, 2));
}

inline void turnWheel (juce::Component& target, float amount, juce::ModifierKeys modifiers = {})
{
    const auto centre = target.getLocalBounds().toFloat().getCentre();
    const juce::MouseWheelDetails wheel { .deltaX = 0.0f,
                                          .deltaY = amount,
                                          .isReversed = false,
                                          .isSmooth = false,
                                          .isInertial = false };
    target.mouseWheelMove (mouseEvent (target, centre, centre, modifiers), wheel);
}

/** As if the component had the focus: it is asked first, then what it lies in. Whether anybody took the key. */
inline bool press (juce::Component& focused, const juce::KeyPress& key)
{
    for (auto* target = &focused; target != nullptr; target = target->getParentComponent())
        if (target->keyPressed (key))
            return true;

    return false;
}

/** A key as JUCE writes it, such as "ctrl + Z" or "cursor left". */
inline bool press (juce::Component& focused, const juce::String& description)
{
    return press (focused, juce::KeyPress::createFromDescription (description));
}
} // namespace Zn::Tests::Hand
