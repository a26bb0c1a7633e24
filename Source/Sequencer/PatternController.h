#pragma once

#include "Foundation/Events/Broadcaster.h"
#include "Sequencer/PatternSlot.h"
#include "Sequencer/PlaybackSlot.h"

namespace Zn::Sequencer
{
/** The eight patterns of a preset, and what is played of them.

    Whoever changes a pattern or a parameter that shapes it holds an Edit meanwhile; when the last one ends,
    all slots are rendered anew and both broadcasters tell of it, the one of the audio side first.
    Thread: message.
*/
class PatternController
{
public:
    using Slots = std::array<PatternSlot, numSlots>;

    /** Collects changes into one rebuild, which comes when it ends, also by an exception. May be nested. */
    class Edit
    {
    public:
        explicit Edit (PatternController& controllerToEdit) noexcept;
        ~Edit();

        Edit (const Edit&) = delete;
        Edit& operator= (const Edit&) = delete;

    private:
        PatternController& controller;
    };

    /** Eight empty drawings, rendered. Thread: any. */
    PatternController();

    PatternController (const PatternController&) = delete;
    PatternController& operator= (const PatternController&) = delete;

    Slots& getSlots() noexcept { return slots; }
    const Slots& getSlots() const noexcept { return slots; }

    /** Counts from the next rebuild on. */
    void setSwing (SwingSettings newSwing) noexcept { swing = newSwing; }
    SwingSettings getSwing() const noexcept { return swing; }

    /** Renders all slots and tells both broadcasters. During an edit this waits for its end. */
    void rebuild();

    /** What the last rebuild made; never null. Constant, and freed by the collector. */
    const std::shared_ptr<const PatternData>& getPatternData() const noexcept { return patternData; }

    /** Hands the new patterns to the audio thread. */
    Events::Broadcaster& getAudioBroadcaster() noexcept { return audioBroadcaster; }

    /** Draws them. */
    Events::Broadcaster& getEditorBroadcaster() noexcept { return editorBroadcaster; }

    /** The array `Patterns`. After loading one, slots that it does not name are empty drawings; an absent key
        leaves all as they are. Loading rebuilds once, also when it throws.
    */
    void reflectPatterns (Reflector& r);

    /** The array `Slots`: which slots play and loop. Loading rebuilds as above. */
    void reflectPlayback (Reflector& r);

private:
    struct PlaybackFlags
    {
        bool playing = true, looping = true;
    };

    void build();
    void remakePlaybackSlots();
    std::shared_ptr<const PatternData> renderAll() const;
    void takeFlags();

    Slots slots;
    std::array<PlaybackFlags, numSlots> flags; // kept here, as each rebuild remakes the playback slots
    std::vector<PlaybackSlot> playbackSlots;   // refer to the patterns of the slots
    SwingSettings swing;
    std::shared_ptr<const PatternData> patternData;

    Events::Broadcaster audioBroadcaster, editorBroadcaster;
    int openEdits = 0;
};
} // namespace Zn::Sequencer
