#include "GUI/Popups/RoutingCases.h"

namespace Zn::GUI
{
namespace
{
using Box = RoutingCase::Box;
using Offer = RoutingCase::Offer;

constexpr Box keys { "Your keys", "a chord", "Midi" };
constexpr Box speakers { "Mixer", "audio", "Sound" };

constexpr RoutingCase cases[] = {
    { "With its own sound",
      "One track, nothing to set up",
      { keys, { "Vornel", "one track", "Pattern" }, speakers },
      { "MIDI", "Audio" },
      { "Put Vornel on an instrument track and play it from your keyboard.",
        "Hold a chord and start the host: the pattern plays Vornel's own sound.",
        "Choose another sound in the browser beside Synth." },
      "Turn Synth on for me",
      Offer::synthOn },
    { "Play another instrument",
      "Two tracks, MIDI between them",
      { keys, { "Vornel", "track 1", "Pattern" }, { "Instrument", "track 2", "Sound" } },
      { "MIDI", "MIDI" },
      { "Put Vornel on a track of its own and play it from your keyboard.",
        "Turn Synth off here, so that only the other instrument sounds.",
        "On the instrument's track, choose Vornel's track as MIDI input and, where the host asks, "
        "Vornel's own MIDI output. Set monitoring to on.",
        "Hold a chord and start the host: the pattern plays the instrument." },
      "Turn Synth off for me",
      Offer::synthOff },
    { "As a MIDI effect",
      "Ahead of an instrument, one track",
      { keys, { "Vornel", "first in the chain", "Pattern" }, { "Instrument", "behind it", "Sound" } },
      { "MIDI", "MIDI" },
      { "Put Vornel on the instrument's track, ahead of the instrument.",
        "Turn Synth off here, so that only the instrument sounds.",
        "If the instrument plays your chord too, let it hear Vornel alone: most hosts have a choice for it.",
        "Hold a chord and start the host." },
      "Turn Synth off for me",
      Offer::synthOff },
    { "Chords from a clip or file",
      "Clip, or the MIDI player",
      { Box { "Clip or file", "long chords", "Midi" }, { "Vornel", "one track", "Pattern" }, speakers },
      { "MIDI", "Audio" },
      { "Draw long chords into a MIDI clip on Vornel's track,",
        "or choose a file at the foot of this window and turn the MIDI player on.",
        "While the player is on, your keys rest.",
        "With Key chosen, the pattern follows each change of the chord at once." },
      "Turn Synth on for me",
      Offer::synthOn },
    { "Without a host",
      "Standalone, any MIDI keyboard",
      { keys, { "Vornel", "application", "Pattern" }, { "Speakers", "audio", "Sound" } },
      { "MIDI", "Audio" },
      { "Start the application and choose audio output and keyboard in its options.",
        "No keyboard at hand? The one at the foot of the window and the computer's keys play, too.",
        "Let the clock run on its own: Internal.",
        "Hold a chord and press Space." },
      "Use the internal clock",
      Offer::internalClock },
    { "I hear nothing",
      "Five things to look at",
      { keys, { "Vornel", "plays a slot", "Pattern" }, { "Sound", "synth or track", "Sound" } },
      { "Clock", "MIDI" },
      { "Keys: while you hold a chord, its name stands left of the ruler.",
        "Clock: the host runs, or the clock is Internal and Play is lit.",
        "Slot: an empty one plays silence, and so do notes of little chance.",
        "Sound: Synth is on and Master is up, or another track takes Vornel's MIDI.",
        "Nothing stops? Panic ends every note." },
      "Stop every note",
      Offer::panic },
};
} // namespace

std::span<const RoutingCase> routingCases()
{
    return cases;
}
} // namespace Zn::GUI
