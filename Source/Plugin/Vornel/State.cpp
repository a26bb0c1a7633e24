#include "Plugin/Vornel/State.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Plugin/Vornel/DefaultPattern.h"
#include "Plugin/Vornel/MidiMetaSlot.h"

#include <array>

namespace Zn::Audio::Plugins::Vornel
{
namespace
{
/** Quarter notes for each choice of `Quantize`. */
constexpr std::array quanta { 4.0, 2.0, 1.0, 0.5, 0.25, 0.125 };

constexpr int semitonesPerOctave = 12;
constexpr int lastSlot = Sequencer::numSlots - 1;
constexpr int mostColumns = 128; // that the editor offers

/** An object of a document that is no object of the model. */
template <typename Fields>
struct Section
{
    Fields fields; // void (Reflector&)

    void reflect (Reflector& r) { fields (r); }
};

template <typename Fields>
Section (Fields) -> Section<Fields>;

void addAtomic (Reflector& r, const std::string& name, std::atomic<bool>& value)
{
    auto copy = value.load();
    r.add (name, copy);

    if (r.isLoading())
        value.store (copy);
}

ConnectedIntParam::Connection connectionTo (std::atomic<int>& value)
{
    return { [&value] { return value.load(); }, [&value] (int newValue) { value.store (newValue); } };
}

/** The audio side takes what is asked for; until then that is the slot to show. */
ConnectedIntParam::Connection wantedSlot (Sequencer::LiveSlots& live)
{
    return { [&live] {
                const auto asked = live.pending.load();
                return asked >= 0 ? asked : live.index.load();
            },
             [&live] (int slot) { live.pending.store (slot); } };
}
} // namespace

State::State()
    : playHead (Events::RefCountedHolder<Sequencer::PlayHead>::create())
    , liveSlots (Events::RefCountedHolder<Sequencer::LiveSlots>::create())
    , bpm (playHead->bpm)
    , slotParam ("Slot", { 0, lastSlot }, 0, wantedSlot (*liveSlots))
    , lowestOctave ("Min", { 0, OctaveRange::highest - 1 }, 0, connectionTo (octaveRange.low))
    , highestOctave (
          "Max", { 1, OctaveRange::highest }, OctaveRange::highest, connectionTo (octaveRange.high))
    , swingWatcher (std::in_place,
                    std::vector { &params.swing.getParameter(), &params.swingRef.getParameter() },
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

ConnectedIntParam State::gridOf (std::size_t slotIndex)
{
    auto& grid = patterns.getSlots()[slotIndex].pattern.grid;

    return { "Grid",
             { 1, mostColumns },
             MidiMetaSlot().pattern.grid,
             { [&grid] { return grid; },
               [this, &grid] (int columns) {
                   grid = columns;
                   patterns.rebuild();
               } } };
}

void State::reflect (Reflector& r)
{
    if (! r.isLoading())
    {
        reflectParams (r);
        reflectPatterns (r);
        return;
    }

    const Sequencer::PatternController::Edit edit (patterns);
    const juce::ScopeGuard swingCounts { [this] { followSwing(); } }; // ahead of the edit's end

    reflectParams (r);
    reflectPatterns (r);
}

void State::reflectParams (Reflector& r)
{
    const std::string key = "Params";

    if (! r.isLoading() && ! r.isForHostChunk() && ! savesParams)
        r.setValue (key, std::monostate());
    else
        r.addChild (key, params);
}

void State::reflectPatterns (Reflector& r)
{
    r.addChild ("Patterns", Section { [this] (Reflector& p) {
                    patterns.reflectPatterns (p);
                    p.addChild ("Sequencer", Section { [this] (Reflector& s) { reflectSequencer (s); } });

                    if (p.isLoading())
                    {
                        p.addChild ("Time", legacy.time);
                        p.add ("fitLoop", legacy.fitLoop);
                    }
                } });
}

void State::reflectSequencer (Reflector& r)
{
    // After the parameters, and so stronger: a file with patterns only still brings its swing.
    r.addChild ("Transport", Section { [this] (Reflector& t) {
                    t.addChild ("BPM", bpm);
                    t.addChild ("Swing", params.swing);
                    t.addChild ("SwingRef", params.swingRef);
                } });

    if (! r.isForHostChunk())
        return;

    r.addChild ("Live", Section { [this] (Reflector& l) {
                    addAtomic (l, "enable", liveSlots->enable);

                    if (auto quantum = liveSlots->quantum.load(); ! l.isLoading())
                        l.add ("quantize", quantum); // to read, not to set: it follows the parameter
                } });

    addAtomic (r, "active", keyMode);
}

void State::followChanges()
{
    if (swingWatcher && juce::MessageManager::existsAndIsCurrentThread())
        swingWatcher->answer();
}

void State::stopFollowing() noexcept
{
    swingWatcher.reset();
    learnMap.stopUpdating();
}

void State::followSwing()
{
    patterns.setSwing (
        Sequencer::SwingSettings::from (params.swing.getParameter().getValue(), params.swingRef.get()));
    patterns.rebuild();
}
} // namespace Zn::Audio::Plugins::Vornel
