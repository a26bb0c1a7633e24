#include "GUI/Widgets/Control.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Widgets/TextLine.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto wheelDelay = 150u; // milliseconds

juce::Colour schemeColour (std::string_view name)
{
    return AssetScheme::Base::get().colourOf (name);
}

juce::uint8 channel (int value)
{
    return static_cast<juce::uint8> (juce::jlimit (0, 255, value));
}

/** A colour as far from another as the scheme's colour of a state is from that of the control at rest. */
juce::Colour stepped (juce::Colour from, juce::Colour state, juce::Colour rest)
{
    return { channel (from.getRed() + state.getRed() - rest.getRed()),
             channel (from.getGreen() + state.getGreen() - rest.getGreen()),
             channel (from.getBlue() + state.getBlue() - rest.getBlue()),
             from.getAlpha() };
}

/** JUCE's own question would ask the window system where the pointer is. */
bool isPointed (const juce::Component& component)
{
    const auto mouse = juce::Desktop::getInstance().getMainMouseSource();

    if (mouse.isDragging())
        return component.isMouseOver (true);

    const auto* const under = mouse.getComponentUnderMouse();
    return under == &component || component.isParentOf (under);
}
} // namespace

Control::Control (EditorContext& contextToUse, std::string element)
    : Element (contextToUse.canvas, std::move (element))
    , context (contextToUse)
    , ring (*this, contextToUse)
    , written (controlText (getElement()))
    , pollListener (contextToUse.polls, [this] { update(); })
    , learnListener (contextToUse.learning, [this] {
        if (getLearnTarget())
            repaint();
    })
{
    setTitle (written.title);
    setDescription (written.help);
    setWantsKeyboardFocus (true);
}

void Control::setEnabledWhen (std::function<bool()> predicate)
{
    enabledWhen = std::move (predicate);
    setEnabled (enabledWhen());
}

void Control::setHelp (const juce::String& newHelp)
{
    written.help = newHelp;
    setDescription (newHelp);
}

TooltipText Control::getTooltipText() const
{
    return { .title = written.title, .value = {}, .help = written.help, .shortcut = written.shortcut };
}

void Control::paintOverChildren (juce::Graphics& g)
{
    if (context.learning.isActive())
        paintLearning (g);
}

void Control::paintLearning (juce::Graphics& g) const
{
    const auto target = getLearnTarget();

    if (! target)
        return;

    const auto isArmed = context.learning.isArmed (*target);
    const auto learned = context.learning.textOf (*target);
    const auto isFilled = isArmed || learned.isNotEmpty();
    const auto around = learnArea();
    const auto isDial = around.getWidth() == around.getHeight();
    const auto stroke = pixels ("ThinnerStroke");

    // A name takes all of the control; of a dial as much as leaves its label and its value to be read.
    const auto plate = isDial ? area().withY (around.getY()).withHeight (around.getHeight()) : area();
    const auto place = isFilled ? plate.reduced (isDial ? stroke : 0.0f, 0.0f) : around;
    const auto edge = place.reduced (stroke / 2.0f);
    const auto corner =
        isDial && ! isFilled ? edge.getWidth() / 2.0f : context.canvas.cornerOf ("ControlCorner", edge);

    g.setColour (schemeColour ("LearnDim"));
    g.fillRect (getLocalBounds()); // as all around it
    g.setColour (schemeColour (isArmed ? "Midi" : isFilled ? "MidiDeep" : "MidiWash"));
    g.fillRoundedRectangle (edge, corner);
    g.setColour (schemeColour ("Midi"));
    g.drawRoundedRectangle (edge, corner, stroke);

    const auto asked = target->isSlot() ? "play a key" + juce::String::charToString (0x2026) : "press pedal";
    g.setFont (context.canvas.fontOf ("FontLabel", AssetScheme::Cut::bold));
    g.setColour (schemeColour (isArmed ? "TextOnAccent" : "Text"));

    if (isFilled)
        g.drawFittedText (isArmed ? asked : learned,
                          place.getSmallestIntegerContainer(),
                          juce::Justification::centred,
                          2,
                          narrowestSqueeze);
}

bool Control::takeLearnPress (const juce::MouseEvent& event)
{
    const auto target = context.learning.isActive() ? getLearnTarget() : std::nullopt;

    if (! target)
        return false;

    if (event.mods.isPopupMenu())
        context.learning.forget (*target);
    else
        context.learning.arm (*target);

    return true;
}

void Control::mouseEnter (const juce::MouseEvent&)
{
    enteredAt = juce::Time::getMillisecondCounter();
}

void Control::mouseExit (const juce::MouseEvent&)
{
    enteredAt = 0;
}

std::unique_ptr<juce::AccessibilityHandler> Control::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (*this, juce::AccessibilityRole::button);
}

void Control::setPressed (bool shouldBePressed)
{
    if (std::exchange (pressed, shouldBePressed) != shouldBePressed)
        repaint();
}

juce::Colour Control::colour (std::string_view name) const
{
    const auto opaque = schemeColour (name);
    return isEnabled() ? opaque
                       : opaque.withMultipliedAlpha (AssetScheme::Base::get().constantOf ("DisabledOpacity"));
}

juce::Colour Control::surface (std::string_view name) const
{
    const auto rest = colour (name);

    if (! isEnabled())
        return rest;

    if (pressed)
        return stepped (rest, schemeColour ("ControlPressed"), schemeColour ("Control"));

    return rest.interpolatedWith (stepped (rest, schemeColour ("ControlHover"), schemeColour ("Control")),
                                  hover);
}

void Control::paintField (juce::Graphics& g, juce::Rectangle<float> field, juce::Colour fill) const
{
    g.setColour (fill);
    g.fillRoundedRectangle (field, context.canvas.cornerOf ("ControlCorner", field));
}

void Control::paintHover (juce::Graphics& g) const
{
    if (isEnabled() && (hover > 0.0f || pressed))
        paintField (g, area(), surface ("Control").withMultipliedAlpha (pressed ? 1.0f : hover));
}

void Control::paintText (juce::Graphics& g,
                         const juce::String& line,
                         const juce::Font& font,
                         juce::Rectangle<float> textArea,
                         juce::Justification justification,
                         juce::Colour fill) const
{
    paintTextLine (g, line, font, textArea, justification, fill);
}

bool Control::isPressKey (const juce::KeyPress& key) const
{
    return key == juce::KeyPress (juce::KeyPress::returnKey)
           || (ring.isShown() && key == juce::KeyPress (juce::KeyPress::spaceKey));
}

bool Control::isWheelMeant() const
{
    return juce::Time::getMillisecondCounter() - enteredAt >= wheelDelay;
}

void Control::update()
{
    if (enabledWhen != nullptr)
        setEnabled (enabledWhen());

    fade();
    poll();
}

void Control::fade()
{
    const auto target = isPointed (*this) && showsHover() && isEnabled() ? 1.0f : 0.0f;

    if (hover == target)
        return;

    constexpr auto pollsPerSecond = 30.0f;
    const auto fadeSeconds = AssetScheme::Base::get().constantOf ("HoverFadeSeconds");
    const auto step = context.settings.get().reducedMotion ? 1.0f : 1.0f / (fadeSeconds * pollsPerSecond);
    hover = target > hover ? std::min (target, hover + step) : std::max (target, hover - step);
    repaint();
}
} // namespace Zn::GUI
