#include "GUI/Sound/Meter.h"

#include "GUI/Framework/AssetScheme/Base.h"

#include <algorithm>
#include <utility>

namespace Zn::GUI
{
namespace
{
constexpr auto longestStep = 0.25f;    // seconds; a meter that was not looked at does not fall through
constexpr auto askingInterval = 500.0; // milliseconds; the window system's answer takes its time

struct SpokenLevel : juce::AccessibilityValueInterface
{
    explicit SpokenLevel (const Meter& meterToRead) : meter (meterToRead) {}

    bool isReadOnly() const override { return true; }
    double getCurrentValue() const override { return double (meter.getShown().level); }
    juce::String getCurrentValueAsString() const override { return meter.getLevelText(); }
    AccessibleValueRange getRange() const override
    {
        return { { double (Meter::lowestDecibels), double (Meter::highestDecibels) }, 0.0 };
    }
    void setValue (double) override {}
    void setValueAsString (const juce::String&) override {}

    const Meter& meter;
};
} // namespace

Meter::Meter (EditorContext& contextToUse, std::string element) : Control (contextToUse, std::move (element))
{
    setWantsKeyboardFocus (false);
    setMouseClickGrabsKeyboardFocus (false);
}

Meter::~Meter()
{
    if (isListening)
        --context.state().numMeterListeners;
}

TooltipText Meter::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();
    tooltip.value = getLevelText();
    return tooltip;
}

juce::String Meter::getLevelText() const
{
    const auto text = shown.level > lowestDecibels ? juce::String (shown.level, 1)
                                                   : "-" + juce::String::charToString (0x221e);
    return withTrueMinus (text) + " dB";
}

bool Meter::isSeen() const
{
    for (const auto* part = static_cast<const juce::Component*> (this); part != &context.canvas.getRoot();
         part = part->getParentComponent())
        if (part == nullptr || ! part->isVisible())
            return false;

    return ! isMinimised;
}

void Meter::listenWhileSeen()
{
    const auto seen = isSeen();

    if (std::exchange (isListening, seen) == seen)
        return;

    context.state().numMeterListeners += seen ? 1 : -1;
    shown.level = shown.peak = settings.lowest;
    lastPoll = juce::Time::getMillisecondCounterHiRes();
}

void Meter::schemeChanged()
{
    const auto& scheme = AssetScheme::Base::get();
    settings = { lowestDecibels,
                 scheme.constantOf ("MeterFallDecibelsPerSecond"),
                 scheme.constantOf ("PeakHoldSeconds") };

    frame.clear();
    frame.addRoundedRectangle (area(), context.canvas.cornerOf ("MeterCorner", area()));
    fill = juce::ColourGradient::vertical (scheme.colourOf ("MeterHigh"),
                                           area().getY(),
                                           scheme.colourOf ("MeterLow"),
                                           area().getBottom());
    listenWhileSeen();
    redraw();
}

int Meter::topOf (float decibels) const
{
    const auto place =
        juce::jlimit (0.0f, 1.0f, (highestDecibels - decibels) / (highestDecibels - lowestDecibels));
    return juce::roundToInt (place * area().getHeight());
}

void Meter::poll()
{
    const auto now = juce::Time::getMillisecondCounterHiRes();

    if (now - lastAsked >= askingInterval)
    {
        const auto* const peer = getPeer();
        isMinimised = peer != nullptr && peer->isMinimised();
        lastAsked = now;
    }

    listenWhileSeen();

    if (! isListening)
        return;

    const auto seconds = static_cast<float> ((now - std::exchange (lastPoll, now)) / 1000.0);
    const auto gain = context.state().meter.load();

    shown.advance (juce::Decibels::gainToDecibels (gain, settings.lowest),
                   std::min (seconds, longestStep),
                   settings);
    redraw();
}

void Meter::redraw()
{
    const Drawing current { topOf (shown.level), topOf (shown.peak), shown.clipped };

    if (drawing == current)
        return;

    const auto before = std::exchange (drawing, current);

    if (before.isRed != current.isRed)
    {
        setWantsKeyboardFocus (current.isRed);
        return repaint();
    }

    const auto repaintBetween = [this] (int top, int otherTop, int height) {
        const auto [upper, lower] = std::minmax (top, otherTop);

        if (upper != lower)
            repaint (0, upper, getWidth(), lower + height - upper);
    };

    repaintBetween (before.levelTop, current.levelTop, 0);
    repaintBetween (before.peakTop, current.peakTop, 1 + static_cast<int> (pixels ("ThinnerStroke")));
}

void Meter::clearRed()
{
    shown.clipped = false;
    redraw();
}

void Meter::mouseDown (const juce::MouseEvent& event)
{
    if (! event.mods.isPopupMenu())
        clearRed();
}

bool Meter::keyPressed (const juce::KeyPress& key)
{
    if (! drawing.isRed || ! isPressKey (key))
        return false;

    clearRed();
    return true;
}

void Meter::paintControl (juce::Graphics& g)
{
    g.setColour (colour ("Inset"));
    g.fillPath (frame);

    const juce::Graphics::ScopedSaveState state (g);
    g.reduceClipRegion (frame);

    g.setFillType (fill);
    g.fillRect (getLocalBounds().withTop (drawing.levelTop));

    if (drawing.peakTop < getHeight())
    {
        g.setColour (colour ("Text"));
        g.fillRect (
            area().withTop (static_cast<float> (drawing.peakTop)).withHeight (pixels ("ThinnerStroke")));
    }

    if (drawing.isRed)
    {
        g.setColour (colour ("MeterClip"));
        g.fillRect (getLocalBounds().withBottom (topOf (0.0f)));
    }
}

std::unique_ptr<juce::AccessibilityHandler> Meter::createAccessibilityHandler()
{
    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::progressBar,
        juce::AccessibilityActions().addAction (juce::AccessibilityActionType::press, [this] { clearRed(); }),
        juce::AccessibilityHandler::Interfaces { std::make_unique<SpokenLevel> (*this) });
}
} // namespace Zn::GUI
