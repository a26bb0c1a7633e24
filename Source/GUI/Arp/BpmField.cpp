#include "GUI/Arp/BpmField.h"

#include "GUI/Widgets/ControlMenu.h"
#include "GUI/Widgets/ParameterEdit.h"

namespace Zn::GUI
{
namespace
{
double secondsNow()
{
    constexpr auto secondsPerMillisecond = 0.001;
    return juce::Time::getMillisecondCounterHiRes() * secondsPerMillisecond;
}

/** The parameter belongs to the state. */
std::shared_ptr<Parameters::Parameter> tempoOf (const EditorContext& context)
{
    return { std::shared_ptr<void>(), &context.state().bpm };
}
} // namespace

BpmField::BpmField (EditorContext& contextToUse)
    : NumberField (contextToUse, "Bpm", tempoOf (contextToUse), { .bare = true })
{}

void BpmField::mouseDown (const juce::MouseEvent& event)
{
    if (isHosts())
        return;

    if (event.mods.isPopupMenu())
        showTempoMenu();
    else if (tapping)
        tap();
    else
        NumberField::mouseDown (event);
}

void BpmField::mouseDoubleClick (const juce::MouseEvent& event)
{
    if (! isHosts() && ! tapping)
        NumberField::mouseDoubleClick (event);
}

void BpmField::mouseWheelMove (const juce::MouseEvent& event, const juce::MouseWheelDetails& wheel)
{
    if (! isHosts())
        NumberField::mouseWheelMove (event, wheel);
}

bool BpmField::keyPressed (const juce::KeyPress& key)
{
    if (isHosts())
        return false;

    if (tapping && key == juce::KeyPress::escapeKey)
        return tapping.reset(), true;

    return NumberField::keyPressed (key);
}

TooltipText BpmField::getTooltipText() const
{
    auto tooltip = NumberField::getTooltipText();

    if (isHosts())
        tooltip.help = "The host gives the tempo.";

    return tooltip;
}

void BpmField::startTapping()
{
    tapping.emplace();
    context.overlay.showMessage ("Click the tempo in time");
}

void BpmField::poll()
{
    if (tapping && tapping->isOver (secondsNow()))
        tapping.reset();

    setWantsKeyboardFocus (! isHosts());
    setMouseCursor (isHosts() ? juce::MouseCursor::NormalCursor : juce::MouseCursor::UpDownResizeCursor);
    NumberField::poll();
}

void BpmField::showTempoMenu()
{
    const juce::Component::SafePointer<BpmField> self (this);
    auto menu = controlMenu (context, *this);

    menu.addSeparator();
    menu.addItem ("Tap tempo", [self] {
        if (self != nullptr)
            self->startTapping();
    });
    context.overlay.showMenu (menu, this);
}

void BpmField::tap()
{
    if (const auto tempo = tapping->tap (secondsNow()))
        context.edits.join (
            &tapping,
            "Tap tempo",
            [&] { return changeAtOnce (*getParameter(), [tempo] (auto& p) { p.setDouble (*tempo); }); },
            juce::uint32 (1000.0 * TapTempo::longestPause));
}

bool BpmField::isHosts() const
{
    return context.state().playHead->hasHostTempo.load();
}
} // namespace Zn::GUI
