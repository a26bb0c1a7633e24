#include "Plugin/Vornel/State.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Plugin/Vornel/DefaultPattern.h"

#include <array>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
/** Quarter notes for each choice of `Quantize`. */
constexpr std::array quanta { 4.0, 2.0, 1.0, 0.5, 0.25, 0.125 };

constexpr int semitonesPerOctave = 12;
} // namespace

State::State()
    : playHead (Events::RefCountedHolder<Sequencer::PlayHead>::create())
    , liveSlots (Events::RefCountedHolder<Sequencer::LiveSlots>::create())
    , bpm (playHead->bpm)
    , swingWatcher ({ &params.swing.getParameter(), &params.swingRef.getParameter() },
                    [this] { followSwing(); })
{
    const Sequencer::PatternController::Edit edit (patterns);
    drawDefaultPattern (patterns.getSlots().front());
}

MidiSettings State::readMidiSettings() const noexcept
{
    const auto followsKey = keyMode.load();
    const auto quantum = static_cast<size_t> (params.quantize.get());

    return { .transposeSemitones = (followsKey ? params.key.get() : params.transpose.get())
                                   + semitonesPerOctave * params.octave.get(),
             .limits = octaveRange.limits(),
             .quantum = quantum < quanta.size() ? quanta[quantum] : 1.0,
             .keyMode = followsKey,
             .retrigger = params.retrigger.get(),
             .arpActive = params.arpActive.get() >= 1 };
}

void State::panic() noexcept
{
    inbox.push (juce::MidiMessage::controllerEvent (1, Midi::sustainController, 0));

    for (auto note = 0; note < 128; ++note)
        inbox.push (juce::MidiMessage::noteOff (1, note));
}

void State::followSwing()
{
    patterns.setSwing (
        Sequencer::SwingSettings::from (params.swing.getParameter().getValue(), params.swingRef.get()));
    patterns.rebuild();
}
} // namespace Zn::Audio::Plugins::Vornel
