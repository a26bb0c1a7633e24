#include "GUI/Sound/DelayTaps.h"

#include "Parameters/CreateForwarder.h"
#include "Synth/AnalogDelay/TimeMap.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
constexpr auto shownSeconds = 2.0;
constexpr auto quietestDecibels = -48.0f;
constexpr auto faintest = 0.35f; // of the colour, for an echo without any treble

int nearestNoteLength (double quarters)
{
    const auto& entries = Audio::AnalogDelay::TimeMap::entries;
    const auto nearest = std::ranges::min_element (entries, {}, [quarters] (const auto& entry) {
        return std::abs (std::log (entry.quarters / std::max (quarters, 1e-3)));
    });
    return static_cast<int> (nearest - entries.begin());
}
} // namespace

DelayTaps::DelayTaps (EditorContext& contextToUse, std::string element)
    : Picture (contextToUse, std::move (element))
    , mode (Parameters::createForwarder (contextToUse.state().params.sound.synth.delay.mode))
    , time (Parameters::createForwarder (contextToUse.state().params.sound.synth.delay.time))
    , timeSync (Parameters::createForwarder (contextToUse.state().params.sound.synth.delay.timeSync))
    , feedback (Parameters::createForwarder (contextToUse.state().params.sound.synth.delay.feedback))
{
    setMouseCursor (juce::MouseCursor::DraggingHandCursor);
}

double DelayTaps::tempo() const
{
    return double (context.state().playHead->bpm.load());
}

bool DelayTaps::takeInputs (bool anyway)
{
    const auto& delay = context.state().params.sound.synth.delay;
    const EchoSettings current { delay.delaySeconds (tempo()),
                                 delay.feedback.get(),
                                 delay.mix.get(),
                                 delay.analog.get() };

    if (! anyway && current == inputs)
        return false;

    inputs = current;
    lines.clear();

    const auto picture = canvasArea();
    const auto width = pixels ("EchoLine");

    for (const auto& tap : echoTaps (inputs, shownSeconds, quietestDecibels))
    {
        const auto x =
            picture.getX() + static_cast<float> (tap.seconds / shownSeconds) * (picture.getWidth() - width);
        const auto height = std::max (width, picture.getHeight() * (1.0f - tap.decibels / quietestDecibels));
        lines.push_back ({ { x, picture.getBottom() - height, width, height },
                           faintest + (1.0f - faintest) * tap.brightness });
    }

    return true;
}

void DelayTaps::paintPicture (juce::Graphics& g)
{
    const auto picture = canvasArea();
    const auto hairline = std::max (1.0f, pixels ("HairlineStroke"));
    g.setColour (colour ("GridBeat"));
    g.fillRect (picture.getX(), std::ceil (picture.getBottom() + hairline), picture.getWidth(), hairline);

    for (auto i = lines.size(); i-- > 0;)
    {
        const auto isSilent = i > 0 && inputs.mix <= 0.0f;
        const auto& [bounds, opacity] = lines[i];
        g.setColour (colour (isSilent ? "KnobTrack" : "Sound").withMultipliedAlpha (opacity));
        g.fillRoundedRectangle (bounds, bounds.getWidth() / 2.0f);
    }
}

juce::String DelayTaps::timeText (ValueDetail detail) const
{
    return isFree() ? ValueText (ValueStyle::seconds).current (*time, detail) : timeSync->getCurrentText();
}

juce::String DelayTaps::describe() const
{
    return "Echoes every " + timeText (ValueDetail::shown) + ", feedback "
           + ValueText (ValueStyle::percent).current (*feedback);
}

std::vector<Picture::ParameterHandle> DelayTaps::parametersOf (std::size_t) const
{
    return { isFree() ? time : timeSync, feedback };
}

std::pair<juce::String, juce::String> DelayTaps::readoutOf (std::size_t) const
{
    return { timeText (ValueDetail::precise), "Fdbk " + ValueText (ValueStyle::percent).current (*feedback) };
}

void DelayTaps::dragBegins (std::size_t)
{
    startSeconds = inputs.seconds;
    startFeedback = feedback->getNormalised();
}

void DelayTaps::moveHandle (std::size_t, juce::Point<float> moved)
{
    const auto picture = canvasArea();
    const auto seconds = startSeconds + double (moved.x / picture.getWidth()) * shownSeconds;

    if (isFree())
        time->setDouble (seconds);
    else
        timeSync->setInt (nearestNoteLength (seconds * tempo() / 60.0));

    feedback->setNormalisedNotifying (
        juce::jlimit (0.0f, 1.0f, startFeedback - moved.y / picture.getHeight()));
}
} // namespace Zn::GUI
