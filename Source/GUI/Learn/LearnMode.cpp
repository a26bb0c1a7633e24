#include "GUI/Learn/LearnMode.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto pulseInterval = 50;    // milliseconds
constexpr auto quietestPulse = 0.35f; // opacity

using Target = Learning::Target;

juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

bool movesParameter (const Learning::LearnMap::Binding& binding)
{
    return ! binding.target.isSlot();
}
} // namespace

LearnMode::LearnMode (EditorContext& contextToUse, juce::Component& pageToMark)
    : context (contextToUse)
    , page (pageToMark)
    , bar (contextToUse)
    , panel (contextToUse)
    , learning (contextToUse.learning, [this] { follow(); })
    , canvas (contextToUse.canvas, [this] { layOut(); })
    , settings (contextToUse.settings, [this] { showLines(); })
    , polls (contextToUse.polls, [this] { poll(); })
    , pulses (pulseInterval, [this] { pulse(); })
{
    pulses.setActive (false);
    setTitle ("MIDI learn");
    setFocusContainerType (FocusContainerType::keyboardFocusContainer);
    addAndMakeVisible (bar);
    addAndMakeVisible (panel);
    panelShadow.emplace (panel, context.canvas);

    panel.onHover = [this] (auto target) { mark (std::move (target)); };
    showLines();
    context.actions.leaveLearning = [this] { return leave(); };
}

bool LearnMode::leave()
{
    auto& mode = context.learning;

    if (! mode.isActive())
        return false;

    if (armed)
        mode.disarm();
    else
        mode.setActive (false);

    return true;
}

/** The mode, what is waited for, or what is learned has changed. */
void LearnMode::follow()
{
    const auto waitedFor = std::exchange (armed, context.learning.getMap().getLearning());

    if (armed && ! context.learning.isActive()) // by the menu of a control
        context.learning.setActive (true);

    if (context.learning.isActive() != isVisible())
        show (context.learning.isActive());

    if (! isVisible())
        return;

    if (armed && armed != waitedFor)
        context.overlay.announce (titleOf (*armed)
                                  + (armed->isSlot() ? ", play a key" : ", press the pedal"));

    answerBindings (waitedFor);

    if (marked && context.learning.textOf (*marked).isEmpty())
        marked.reset();

    showLines();
    pulses.setActive (armed.has_value() && ! context.settings.get().reducedMotion);
    brightness = 1.0f;
    repaint();
}

void LearnMode::show (bool shouldBeShown)
{
    bindings = context.learning.getMap().getBindings();
    marked.reset();
    pulses.setActive (false);

    if (shouldBeShown)
        context.overlay.closePopup(); // it would lie above, with the focus taken from it

    setVisible (shouldBeShown);
    layOut();

    if (isShowing())
        grabKeyboardFocus();
}

void LearnMode::answerBindings (const std::optional<Target>& waitedFor)
{
    const auto before = std::exchange (bindings, context.learning.getMap().getBindings());
    const auto hasPedal = std::any_of (bindings.begin(), bindings.end(), movesParameter);

    if (hasPedal && std::none_of (before.begin(), before.end(), movesParameter))
        context.overlay.showMessage ("The pedal no longer sustains");

    if (! waitedFor || armed || bindings == before)
        return;

    context.overlay.announce (titleOf (*waitedFor) + ", " + context.learning.textOf (*waitedFor));

    if (waitedFor->isSlot())
        armNextSlot (waitedFor->slot);
}

void LearnMode::armNextSlot (int after)
{
    for (auto slot = after + 1; slot < Sequencer::numSlots; ++slot)
        if (const auto next = Target::forSlot (slot); context.learning.textOf (next).isEmpty())
            return context.learning.arm (next);
}

void LearnMode::poll()
{
    if (! isVisible())
        return;

    auto visible = findLearnTargets (page);

    if (visible == targets)
        return;

    targets = std::move (visible);
    repaint();
}

void LearnMode::pulse()
{
    const auto seconds = double (juce::Time::getMillisecondCounter()) * 0.001;
    const auto breath = double (AssetScheme::Base::get().constantOf ("PendingPulseSeconds"));
    const auto wave = 0.5 + 0.5 * std::cos (juce::MathConstants<double>::twoPi * seconds / breath);
    brightness = quietestPulse + (1.0f - quietestPulse) * static_cast<float> (wave);

    for (const auto& target : targets)
        if (armed == target.target)
            repaint (
                boundsOf (target).expanded (juce::roundToInt (context.canvas.pixelsOf ("DefaultStroke"))));
}

void LearnMode::mark (std::optional<Target> target)
{
    marked = std::move (target);
    repaint();
}

void LearnMode::layOut()
{
    if (! isVisible())
        return;

    setBounds (page.getLocalBounds());
    targets = findLearnTargets (page);
}

void LearnMode::showLines()
{
    context.learning.setMiddleC (context.settings.get().middleC);
    std::vector<LearnPanel::Line> lines;

    for (const auto& binding : bindings)
        lines.push_back (
            { binding.target, context.learning.textOf (binding.target), titleOf (binding.target) });

    std::stable_sort (lines.begin(), lines.end(), [] (const auto& a, const auto& b) {
        const auto place = [] (const Target& t) { return t.isSlot() ? t.slot : Sequencer::numSlots; };
        return place (a.target) < place (b.target);
    });

    panel.setLines (std::move (lines));
}

void LearnMode::mouseDown (const juce::MouseEvent& event)
{
    const auto* found = targetAt (event.getPosition());

    if (found == nullptr)
        return;

    const auto target = found->target;

    if (event.mods.isPopupMenu())
        context.learning.forget (target);
    else
        context.learning.arm (target);
}

TooltipText LearnMode::getTooltipText() const
{
    const auto* found = targetAt (getMouseXYRelative());

    if (found == nullptr)
        return {};

    return { .title = titleOf (found->target),
             .value = context.learning.textOf (found->target),
             .help = found->target.isSlot() ? "Click, then play the key that switches to it."
                                            : "Click, then press the pedal that moves it.",
             .shortcut = {} };
}

std::unique_ptr<juce::AccessibilityHandler> LearnMode::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::dialogWindow);
}

juce::Rectangle<int> LearnMode::boundsOf (const LearnTarget& target) const
{
    return page.getLocalArea (target.control, target.control->getLocalBounds());
}

const LearnTarget* LearnMode::targetAt (juce::Point<int> position) const
{
    const auto isThere = [&] (const LearnTarget& target) { return boundsOf (target).contains (position); };
    const auto found = std::find_if (targets.begin(), targets.end(), isThere);
    return found != targets.end() ? &*found : nullptr;
}

juce::String LearnMode::titleOf (const Target& target) const
{
    if (target.isSlot())
        return "Pattern " + juce::String (target.slot + 1);

    const auto isIts = [&] (const LearnTarget& candidate) { return candidate.target == target; };
    const auto found = std::find_if (targets.begin(), targets.end(), isIts);
    return found != targets.end() ? found->control->getText().title
                                  : target.param.replaceCharacter ('-', ' ');
}

void LearnMode::paint (juce::Graphics& g)
{
    {
        const juce::Graphics::ScopedSaveState saved (g);

        for (const auto& target : targets)
            g.excludeClipRegion (boundsOf (target));

        g.fillAll (schemeColour ("LearnDim"));
    }

    for (const auto& target : targets)
        if (armed == target.target)
            paintEdge (g, target, "Midi");
        else if (marked == target.target)
            paintEdge (g, target, "Focus");
}

/** Around a control. */
void LearnMode::paintEdge (juce::Graphics& g, const LearnTarget& target, std::string_view colour) const
{
    const auto& sheet = context.canvas;
    const auto stroke = sheet.pixelsOf ("ThinnerStroke");
    const auto edge = boundsOf (target).toFloat().expanded (1.5f * stroke);

    g.setColour (schemeColour (colour).withMultipliedAlpha (colour == "Midi" ? brightness : 1.0f));
    g.drawRoundedRectangle (edge, sheet.cornerOf ("PreviewBoxCorner", edge), stroke);
}
} // namespace Zn::GUI
