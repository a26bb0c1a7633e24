#pragma once

#include "Foundation/Events/Broadcaster.h"
#include "Foundation/GUIToRealTime.h"
#include "Sequencer/MidiPlayer/Settings.h"
#include "Sequencer/MidiPlayer/Song.h"

#include <atomic>

namespace Zn::Sequencer::MidiPlayer
{
/** Carries songs to the audio thread; null: none. */
using SongRing = GUIToRealTime<std::shared_ptr<const Song>, 5>;

/** The player as all but the audio thread see it: which file is chosen, and whether its notes are heard in place of
    the held keys. Thread: message.
*/
class Controller
{
public:
    /** A file that is not there or cannot be played is no file. */
    void choose (const Resource& resource);

    void setActive (bool shouldBeHeard);
    void setPlaying (bool shouldPlay);

    /** Takes everything at once. A file that cannot be had is kept: it may be there again tomorrow. */
    void set (const Settings& newSettings);

    const Settings& get() const noexcept { return settings; }

    /** Null while there is nothing to play. */
    const std::shared_ptr<const Song>& getSong() const noexcept { return song; }

    /** See Settings. Loading reads the file anew; undo does so only if it brings back another one. */
    void reflect (Reflector& r);

    /** Whether its notes take the place of the keys. Thread: any. */
    bool isHeard() const noexcept { return active.load() && playing.load(); }

    /** Thread: audio. */
    SongRing::Reader getSongs() noexcept { return songs.getReader(); }

    Events::Broadcaster changed; // another file, or another setting

private:
    void take (const Settings& newSettings, std::shared_ptr<const Song> newSong);
    void switchOver() noexcept;

    Settings settings;
    std::shared_ptr<const Song> song;

    SongRing songs;
    std::atomic<bool> active { false }, playing { true }; // written: message, read: audio
};
} // namespace Zn::Sequencer::MidiPlayer
