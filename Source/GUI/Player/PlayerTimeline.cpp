#include "GUI/Player/PlayerTimeline.h"

#include "GUI/Framework/AssetScheme/Base.h"
#include "GUI/Player/PlayerActions.h"

#include <algorithm>
#include <cmath>

namespace Zn::GUI
{
namespace
{
/** What stands in place of chords. */
juce::String noticeOf (Audio::Plugins::Vornel::State& state)
{
    if (state.player.getSong() != nullptr)
        return {};

    if (state.midiFile.getInt() == 0)
        return "Drop a MIDI file here";

    return isFileMissing (state) ? "This file is not there any more" : "This file cannot be played";
}
} // namespace

PlayerTimeline::PlayerTimeline (EditorContext& contextToUse)
    : Control (contextToUse, "PlayerTimeline")
    , listener (contextToUse.state().player.changed, [this] { isStale = true; })
{
    setEnabledWhen ([this] { return song != nullptr; });
    readSong();
}

TooltipText PlayerTimeline::getTooltipText() const
{
    auto tooltip = Control::getTooltipText();

    if (pointed >= 0)
        tooltip.value = chords[static_cast<std::size_t> (pointed)].name;

    if (song == nullptr)
        tooltip.help = notice;
    else if (! canJump())
        tooltip.help = "The host's clock decides where the file plays.";

    return tooltip;
}

void PlayerTimeline::schemeChanged()
{
    font = context.canvas.fontOf ("FontSmall");
    layOut();
}

void PlayerTimeline::readSong()
{
    isStale = false;
    song = context.state().player.getSong();
    notice = noticeOf (context.state());
    middleC = context.settings.get().middleC;
    chords = song != nullptr ? chordsOf (*song, middleC) : std::vector<SongChord>();
    lit = pointed = -1;
    layOut();
}

void PlayerTimeline::layOut()
{
    chips.clear();

    const auto gap = pixels ("SegmentInset");
    const auto inset = pixels ("CaptionGap");
    const auto row = area().reduced (0.0f, gap);

    for (const auto& chord : chords)
    {
        const auto xOf = [&] (double time) {
            return row.getX() + row.getWidth() * static_cast<float> (time / song->slot.playLength);
        };
        const auto left = std::round (xOf (chord.time.start));
        const auto right = std::max (std::round (xOf (chord.time.end())) - gap, left + 1.0f);
        const auto fits = font.getStringWidthFloat (chord.name) <= right - left - inset;

        chips.push_back ({ row.withLeft (left).withRight (right), fits ? chord.name : juce::String() });
    }

    repaint();
}

void PlayerTimeline::paintControl (juce::Graphics& g)
{
    if (song == nullptr) // to be read, though there is nothing to click
        paintText (g,
                   notice,
                   font,
                   area(),
                   juce::Justification::centredLeft,
                   AssetScheme::Base::get().colourOf ("TextSecondary"));

    const auto inset = std::round (pixels ("CaptionGap") / 2.0f);

    for (auto index = 0; const auto& [chip, text] : chips)
    {
        const auto isLit = index == lit;
        const auto isPointed = index == pointed && canJump();

        paintField (g, chip, colour (isLit ? "MidiDeep" : isPointed ? "ControlHover" : "Control"));
        g.setFont (font);
        g.setColour (colour (isLit ? "Text" : "TextSecondary"));

        const auto isWide = chip.getWidth() >= font.getHeight() * 4.0f;
        g.drawText (text,
                    chip.reduced (isWide ? 3.0f * inset : inset, 0.0f),
                    isWide ? juce::Justification::centredLeft : juce::Justification::centred,
                    false);
        ++index;
    }
}

void PlayerTimeline::poll()
{
    if (isStale || middleC != context.settings.get().middleC)
        readSong();

    const auto now = chordNow();

    if (const auto before = std::exchange (lit, now); before != now)
    {
        repaintChip (before);
        repaintChip (now);
    }
}

/** As the engine counts it, from the song's beginning. */
double PlayerTimeline::getPosition() const
{
    return std::fmod (context.state().playHead->positionPpq.load(), song->slot.playLength);
}

int PlayerTimeline::chordNow() const
{
    if (song == nullptr || ! context.state().player.isHeard() || ! context.state().playHead->isPlaying.load())
        return -1;

    const auto position = getPosition();
    const auto playing = std::ranges::find_if (chords, [position] (const SongChord& chord) {
        return chord.time.start <= position && position < chord.time.end();
    });

    return playing != chords.end() ? static_cast<int> (playing - chords.begin()) : -1;
}

bool PlayerTimeline::canJump() const
{
    return context.state().playHead->isMovable();
}

int PlayerTimeline::chordAt (juce::Point<float> position) const
{
    const auto found = std::ranges::find_if (chips, [position] (const Chip& chip) {
        return chip.area.getX() <= position.x && position.x < chip.area.getRight();
    });

    return found != chips.end() ? static_cast<int> (found - chips.begin()) : -1;
}

void PlayerTimeline::pointAt (juce::Point<float> position)
{
    const auto now = chordAt (position);

    if (const auto before = std::exchange (pointed, now); before != now)
    {
        repaintChip (before);
        repaintChip (now);
    }
}

void PlayerTimeline::mouseExit (const juce::MouseEvent& event)
{
    pointAt ({ -1.0f, 0.0f });
    Control::mouseExit (event);
}

void PlayerTimeline::mouseDown (const juce::MouseEvent& event)
{
    ring.mousePressed();

    if (isEnabled() && ! event.mods.isPopupMenu())
        jumpTo (chordAt (event.position));
}

bool PlayerTimeline::keyPressed (const juce::KeyPress& key)
{
    const auto step = key == juce::KeyPress (juce::KeyPress::rightKey)  ? 1
                      : key == juce::KeyPress (juce::KeyPress::leftKey) ? -1
                                                                        : 0;

    if (step == 0 || chords.empty())
        return false;

    const auto begunBy = [position = getPosition()] (const SongChord& chord) {
        return chord.time.start <= position;
    };
    const auto numBegun = static_cast<int> (std::ranges::count_if (chords, begunBy));
    const auto count = static_cast<int> (chords.size());
    ring.keyPressed();
    const auto next = step > 0 ? numBegun : std::max (numBegun, 1) - 2;
    jumpTo ((next + count) % count);
    return true;
}

void PlayerTimeline::jumpTo (int chord)
{
    if (chord < 0 || ! canJump())
        return;

    context.state().playHead->moveTo (chords[static_cast<std::size_t> (chord)].time.start);
}

void PlayerTimeline::repaintChip (int chord)
{
    if (chord >= 0 && chord < static_cast<int> (chips.size()))
        repaint (chips[static_cast<std::size_t> (chord)].area.getSmallestIntegerContainer());
}

std::unique_ptr<juce::AccessibilityHandler> PlayerTimeline::createAccessibilityHandler()
{
    struct Spoken : juce::AccessibilityTextValueInterface
    {
        explicit Spoken (const PlayerTimeline& timelineToSpeak) : timeline (timelineToSpeak) {}

        bool isReadOnly() const override { return true; }
        void setValueAsString (const juce::String&) override {}
        juce::String getCurrentValueAsString() const override
        {
            juce::StringArray names;

            for (const auto& chord : timeline.getChords())
                names.add (chord.name);

            return names.isEmpty() ? timeline.getNotice() : names.joinIntoString (", ");
        }

        const PlayerTimeline& timeline;
    };

    return std::make_unique<juce::AccessibilityHandler> (
        *this,
        juce::AccessibilityRole::staticText,
        juce::AccessibilityActions(),
        juce::AccessibilityHandler::Interfaces { std::make_unique<Spoken> (*this) });
}
} // namespace Zn::GUI
