#include "Plugin/Vornel/State.h"

#include "Foundation/Events/RefCountedHolder.h"
#include "Plugin/Vornel/FactoryArchives.h"
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

constexpr auto paramsKey = "Params";

/** A preset of patterns alone holds nothing there. */
bool bringsSound (Reflector& r)
{
    const auto* const params = r.getChild (paramsKey);
    return params != nullptr && params->getSize() > 0;
}

/** The sound that a pattern preset has brought is in no file of the sounds, and no edit of the one that was there. */
void nameAfter (const Presets::Base& patterns, SynthPreset& sound)
{
    sound.forgetChanges();
    sound.setName ("from " + patterns.getName());
    sound.setDirty (false);
}

/** An object of a document that is no object of the model. */
template <typename Fields>
struct Section
{
    Fields fields; // void (Reflector&)

    void reflect (Reflector& r) { fields (r); }
};

template <typename Fields>
Section (Fields) -> Section<Fields>;

template <typename T>
void addAtomic (Reflector& r, const std::string& name, std::atomic<T>& value)
{
    auto copy = value.load();
    r.add (name, copy);

    if (r.isLoading())
        value.store (copy);
}
} // namespace

State::State()
    : playHead (Events::RefCountedHolder<Sequencer::PlayHead>::create())
    , liveSlots (Events::RefCountedHolder<Sequencer::LiveSlots>::create())
    , bpm (playHead->bpm)
    , slotParam ("Slot", { 0, lastSlot }, 0, wantedSlot())
    , lowestOctave ("Min", { 0, OctaveRange::highest - 1 }, 0, connectionTo (octaveRange.low))
    , highestOctave (
          "Max", { 1, OctaveRange::highest }, OctaveRange::highest, connectionTo (octaveRange.high))
{}

juce::File State::getDefaultPresetFile() const
{
    return getContentFolder().getChildFile ("WELCOME.json");
}

const Binaries::Library& State::getArchives() const
{
    return factoryArchives();
}

void State::init()
{
    synthPreset.prepareFirstUse(); // keeps the sound as it is before any preset
    StateBase::init();
    synthPreset.init();

    // The sound of the one gave way to that of the other, and nobody has edited anything.
    forgetChanges();
    setDirty (false);
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
             .arpActive = params.arpActive.get() >= 1,
             .playsFile = player.isHeard() };
}

void State::setPlayerActive (bool shouldBeHeard)
{
    player.setActive (shouldBeHeard);
    keyMode.store (shouldBeHeard);
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

void State::reflectExtra (Reflector& r)
{
    // Later, on the timer's tick, their values would be put over those that are loaded.
    if (r.isLoading())
        learnMap.tellOfMoves();

    StateBase::reflectExtra (r);

    if (! r.isLoading() && ! r.isForHostChunk() && ! savesParams)
        r.setValue (paramsKey, std::monostate());
    else
        r.addChild (paramsKey, params);
}

void State::reflectMembers (Reflector& r)
{
    if (! r.isLoading())
        return reflectDocument (r);

    const juce::ScopeGuard settles { [this, &r] {
        settleAfterLoad (r.getContext());

        if (r.getContext() == ReflectorContext::forPresetFile() && bringsSound (r))
            nameAfter (*this, synthPreset);
    } };
    const juce::ScopedValueSetter<bool> loadIsNoEdit (patternsChangeByHand, false);
    const Sequencer::PatternController::Edit edit (patterns);
    const juce::ScopeGuard swingCounts { [this] { followSwing(); } }; // ahead of the edit's end

    reflectDocument (r);
}

void State::reflectDocument (Reflector& r)
{
    reflectPatterns (r);

    if (! r.isForHostChunk())
        return;

    r.addChild ("Slots", Section { [this] (Reflector& s) { reflectSlots (s); } });
    r.addChild ("MidiPlayer", player);
    r.addChild ("Synth", synthPreset);
    r.addChild ("Octave", Section { [this] (Reflector& o) { reflectOctaves (o); } });
    r.addChild ("UI", Section { [this] (Reflector& u) { u.add ("snap", snap); } });
    r.addChild ("MidiLearn", learnMap);
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

void State::reflectSlots (Reflector& r)
{
    const auto before = slotParam.getInt();
    auto slot = before;

    patterns.reflectPlayback (r);
    r.add ("Slot", slot);

    // Undoing something else leaves a switch alone that waits for its moment.
    if (! r.isLoading() || (slot == before && r.getContext() == ReflectorContext::forUndo()))
        return;

    slot = std::clamp (slot, 0, lastSlot);
    liveSlots->pending.store (-1);
    liveSlots->index.store (slot);
    liveSlots->heard.store (slot);
}

void State::reflectOctaves (Reflector& r)
{
    addAtomic (r, "Min", octaveRange.low);
    addAtomic (r, "Max", octaveRange.high);
}

/** The audio side takes what is asked for; until then that is the slot to show. */
ConnectedIntParam::Connection State::wantedSlot()
{
    return { [this] {
                const auto asked = liveSlots->pending.load();
                return asked >= 0 ? asked : liveSlots->index.load();
            },
             [this] (int slot) {
                 liveSlots->pending.store (slot);
                 projectChanged.callListeners();
             } };
}

ConnectedIntParam::Connection State::connectionTo (std::atomic<int>& value)
{
    return { [&value] { return value.load(); },
             [this, &value] (int newValue) {
                 value.store (newValue);
                 projectChanged.callListeners();
             } };
}

void State::followChanges()
{
    if (! juce::MessageManager::existsAndIsCurrentThread())
        return;

    for (auto* watcher : { &swingWatcher, &presetWatcher })
        if (*watcher)
            (*watcher)->answer();
}

void State::startFollowing()
{
    swingWatcher.emplace (std::vector { &params.swing.getParameter(), &params.swingRef.getParameter() },
                          [this] { followSwing(); });
    presetWatcher.emplace (parametersOfPreset (params), [this] { setDirty (true); });
    projectWatcher.emplace (parametersUnknownToHost (params), [this] { projectChanged.callListeners(); });
    synthPreset.startFollowing();
}

void State::forgetChanges() noexcept
{
    for (auto* watcher : { &presetWatcher, &projectWatcher })
        if (*watcher)
            (*watcher)->forget();

    synthPreset.forgetChanges();
}

void State::stopFollowing() noexcept
{
    for (auto* watcher : { &swingWatcher, &presetWatcher, &projectWatcher })
        watcher->reset();

    synthPreset.stopFollowing();
    learnMap.stopUpdating();
}

void State::followSwing()
{
    const juce::ScopedValueSetter<bool> parameterTellsItself (patternsChangeByHand, false);

    patterns.setSwing (Sequencer::SwingSettings::from (double (params.swing.getParameter().getValue()),
                                                       params.swingRef.get()));
    patterns.rebuild();
}

void State::answerPatternChange()
{
    if (! patternsChangeByHand)
        return;

    setDirty (true);
    projectChanged.callListeners();
}

void State::settleAfterLoad (const ReflectorContext& context)
{
    if (presetWatcher)
        presetWatcher->forget();

    if (context != ReflectorContext::forHostChunk())
        projectChanged.callListeners();
}
} // namespace Zn::Audio::Plugins::Vornel
