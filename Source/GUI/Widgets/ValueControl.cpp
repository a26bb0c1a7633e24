#include "GUI/Widgets/ValueControl.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/ControlMenu.h"
#include "GUI/Widgets/HostParameter.h"
#include "GUI/Widgets/SpokenValue.h"
#include "GUI/Widgets/ValueKeys.h"

namespace Zn::GUI
{
namespace
{
constexpr double coarseStep = 0.01, fineStep = 0.001; // of the range, of a value without steps
constexpr double fineTempo = 0.1;                     // quarters a minute

/** A little above the step, as some values are cut off to the next lower one. */
float normalisedOfStep (int step, int numSteps)
{
    constexpr auto margin = 0.01f;
    return std::min (1.0f, (static_cast<float> (step) + margin) / static_cast<float> (numSteps));
}
} // namespace

ValueControl::ValueControl (EditorContext& contextToUse,
                            std::string element,
                            std::shared_ptr<Parameters::Parameter> parameterToShow)
    : Control (contextToUse, std::move (element))
    , parameter (std::move (parameterToShow))
    , valueText (getText().style)
{
    look();
}

ValueControl::~ValueControl() = default;

ValueControl::Drag::Drag (ValueControl& control, juce::Point<float> start)
    : edit (control.context.edits, control.parameter, control.getText().title)
    , last (start)
    , position (double (edit.getStart()))
{}

juce::String ValueControl::getShownText (ValueDetail detail) const
{
    return valueText.current (*parameter, detail);
}

juce::String ValueControl::getDefaultText() const
{
    return valueText.at (*parameter, parameter->getDefault(), ValueDetail::full);
}

std::optional<Learning::Target> ValueControl::getLearnTarget() const
{
    const auto* known = hostParameterOf (*parameter);
    return known != nullptr ? std::optional (Learning::Target::forParam (known->getParameterID()))
                            : std::nullopt;
}

bool ValueControl::understands (const juce::String& typed) const
{
    return valueText.read (typed, *parameter).has_value();
}

TooltipText ValueControl::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.value = getShownText (ValueDetail::full);
    return tooltip;
}

int ValueControl::currentStep() const
{
    return juce::roundToInt (parameter->getNormalised() * static_cast<float> (parameter->getNumSteps()));
}

void ValueControl::setStep (int step)
{
    const auto numSteps = parameter->getNumSteps();
    parameter->setNormalisedNotifying (normalisedOfStep (juce::jlimit (0, numSteps, step), numSteps));
}

void ValueControl::stepBy (int steps, bool fine)
{
    if (parameter->hasSteps())
        return moveBy (steps);

    changeJoining ([this, steps, fine] (auto& p) {
        if (getText().style == ValueStyle::tempo)
            p.setDouble (double (p.getFloat()) + steps * (fine ? fineTempo : 1.0));
        else
            p.setNormalisedNotifying (juce::jlimit (
                0.0f,
                1.0f,
                p.getNormalised() + static_cast<float> (steps * (fine ? fineStep : coarseStep))));
    });
}

void ValueControl::clickBy (int steps)
{
    context.edits.finish();
    stepBy (steps);
    context.edits.finish();
}

void ValueControl::resetToDefault()
{
    change ([] (auto& p) { p.setNormalisedNotifying (p.getDefault()); });
}

bool ValueControl::setFromTyped (const juce::String& typed)
{
    const auto text = valueText.read (typed, *parameter);

    if (! text)
        return false;

    change ([&text] (auto& p) { p.setFromText (*text); });
    return true;
}

void ValueControl::typeValue()
{
    const juce::Component::SafePointer<ValueControl> self (this);

    context.overlay.enterValue (
        *this,
        getShownText (ValueDetail::full),
        [self] (const juce::String& typed) { return self == nullptr || self->setFromTyped (typed); },
        [self] {
            if (self != nullptr)
                self->typeNext();
        });
}

/** The next stop of the Tab key, with its own text entry if it is a value. */
void ValueControl::typeNext()
{
    const auto traverser = createKeyboardFocusTraverser();
    auto* const next = traverser != nullptr ? traverser->getNextComponent (this) : nullptr;

    if (next != nullptr && next->isShowing())
        next->grabKeyboardFocus();

    if (auto* const value = dynamic_cast<ValueControl*> (next))
        value->typeValue();
}

void ValueControl::showMenu()
{
    context.overlay.showMenu (controlMenu (context, *this), this);
}

void ValueControl::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (takeLearnPress (event) || ! isEnabled())
        return;

    if (event.mods.isPopupMenu())
        showMenu();
    else if (event.mods.isCommandDown())
        resetToDefault();
    else
        pressed (event);
}

void ValueControl::pressed (const juce::MouseEvent& event)
{
    beginDrag (event);
}

void ValueControl::beginDrag (const juce::MouseEvent& event)
{
    drag.emplace (*this, event.position);
    setPressed (true);
}

void ValueControl::mouseDrag (const juce::MouseEvent& event)
{
    if (! drag)
        return;

    event.source.enableUnboundedMouseMovement (true);

    const auto movement = event.position - std::exchange (drag->last, event.position);
    const auto factor =
        event.mods.isShiftDown() ? AssetScheme::Base::get().constantOf ("KnobFineFactor") : 1.0f;
    drag->position = juce::jlimit (0.0, 1.0, drag->position + double (proportionOf (movement) * factor));

    if (parameter->hasSteps())
        setStep (juce::roundToInt (drag->position * parameter->getNumSteps()));
    else
        parameter->setNormalisedNotifying (static_cast<float> (drag->position));

    poll();

    if (const auto text = getReadout(); text.isNotEmpty())
        context.overlay.showReadout (getText().title, text, event.getScreenPosition());
}

void ValueControl::mouseUp (const juce::MouseEvent& event)
{
    event.source.enableUnboundedMouseMovement (false);
    endDrag();
}

void ValueControl::endDrag()
{
    if (drag && getReadout().isNotEmpty())
        context.overlay.hideReadout();

    setPressed (false);
    drag.reset();
    poll();
}

void ValueControl::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (! isEnabled() || event.mods.isAnyModifierKeyDown() || ! event.mods.isLeftButtonDown())
        return;

    endDrag();

    if (valueArea().contains (event.getPosition()))
        typeValue();
    else
        resetToDefault();
}

void ValueControl::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! isEnabled() || ! isWheelMeant() || ! context.settings.get().wheelTurnsKnobs || isDragging())
    {
        Control::mouseWheelMove (event, wheel);
        return;
    }

    constexpr auto smoothStep = 0.05f; // of a wheel that turns without notches, for a step of the value

    if (const auto steps = wheelSteps.upIn (wheel, smoothStep); steps != 0)
        stepBy (steps * upwards(), event.mods.isShiftDown());
}

bool ValueControl::keyPressed (const juce::KeyPress& key)
{
    const auto isUsed = isEnabled() && answer (key);

    if (isUsed)
        ring.keyPressed();

    return isUsed;
}

bool ValueControl::answer (const juce::KeyPress& key)
{
    using enum ValueKey::Wish;

    switch (const auto [wish, steps, fine] = ValueKey::of (key); wish)
    {
    case none:
        return false;
    case restore:
        return restoreDrag();
    case stepUp:
        return stepBy (steps * upwards(), fine), true;
    case stepAlong:
        return stepBy (steps, fine), true;
    case minimum:
        return setLimit (0.0f), true;
    case maximum:
        return setLimit (1.0f), true;
    case reset:
        return resetToDefault(), true;
    case type:
        return enter(), true;
    case typeDigit:
        return typeFrom (key), true;
    case menu:
        return showMenu(), true;
    }

    return false;
}

bool ValueControl::restoreDrag()
{
    if (! drag)
        return false;

    drag->edit.restore();
    endDrag();
    return true;
}

void ValueControl::setLimit (float normalised)
{
    changeJoining ([normalised] (auto& p) { p.setNormalisedNotifying (normalised); });
}

void ValueControl::typeFrom (const juce::KeyPress& key)
{
    enter();

    if (auto* entry = dynamic_cast<juce::TextEditor*> (getCurrentlyFocusedComponent()))
        entry->keyPressed (key); // takes the place of what is selected
}

void ValueControl::change (const Change& set)
{
    if (isUndoable)
        context.edits.perform (getText().title, [&] { return changeAtOnce (*parameter, set); });
    else
        changeAtOnce (*parameter, set);

    poll();
}

void ValueControl::changeJoining (const Change& set)
{
    if (isUndoable)
        context.edits.join (parameter.get(), getText().title, [&] { return changeAtOnce (*parameter, set); });
    else
        changeAtOnce (*parameter, set);

    poll();
}

float ValueControl::proportionOf (juce::Point<float> movement) const
{
    constexpr auto unitsOfWidth = 1000.0f;
    const auto pixelsPerUnit = static_cast<float> (context.canvas.getRoot().getWidth()) / unitsOfWidth;
    return -movement.y / (AssetScheme::Base::get().constantOf ("KnobDragUnits") * pixelsPerUnit);
}

void ValueControl::poll()
{
    if (drawnPrecisely == isDragging() && ! parameter->differsFrom (drawnPosition, drawnValue))
        return;

    look();
    valueChanged();

    if (auto* handler = getAccessibilityHandler())
        handler->notifyAccessibilityEvent (juce::AccessibilityEvent::valueChanged);
}

void ValueControl::look()
{
    drawnPosition = parameter->getNormalised();
    drawnValue = parameter->getFloat();
    drawnPrecisely = isDragging();
    drawnText = getShownText (drawnPrecisely ? ValueDetail::precise : ValueDetail::shown);
}

std::unique_ptr<juce::AccessibilityHandler> ValueControl::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::slider,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::showMenu,
                                                [this] { showMenu(); }),
        juce::AccessibilityHandler::Interfaces { std::make_unique<SpokenValue> (*this) });
}
} // namespace Zn::GUI
