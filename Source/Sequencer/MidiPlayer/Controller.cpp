#include "Sequencer/MidiPlayer/Controller.h"

#include "Sequencer/MidiPlayer/ReadResource.h"

#include <utility>

namespace Zn::Sequencer::MidiPlayer
{
void Controller::choose (const Resource& resource)
{
    auto newSong = readSong (resource);
    auto newSettings = settings;
    newSettings.resource = newSong != nullptr ? resource : Resource {};
    take (newSettings, std::move (newSong));
}

void Controller::setActive (bool shouldBeHeard)
{
    auto newSettings = settings;
    newSettings.active = shouldBeHeard;
    take (newSettings, song);
}

void Controller::setPlaying (bool shouldPlay)
{
    auto newSettings = settings;
    newSettings.playing = shouldPlay;
    take (newSettings, song);
}

void Controller::set (const Settings& newSettings)
{
    take (newSettings, readSong (newSettings.resource));
}

void Controller::reflect (Reflector& r)
{
    auto reflected = settings;
    reflected.reflect (r);

    if (! r.isLoading())
        return;

    if (r.getContext() == ReflectorContext::forUndo() && reflected.resource == settings.resource)
        take (reflected, song);
    else
        set (reflected);
}

void Controller::take (const Settings& newSettings, std::shared_ptr<const Song> newSong)
{
    if (newSettings == settings && newSong == song)
        return;

    settings = newSettings;

    // Off before another song is there and on behind it: no block in between is to hear the wrong one.
    if (! (settings.active && settings.playing))
        switchOver();

    if (std::exchange (song, std::move (newSong)) != song)
        songs.getWriter().publish ([this] (auto& frame) { frame = song; });

    switchOver();
    changed.callListeners();
}

void Controller::switchOver() noexcept
{
    active.store (settings.active);
    playing.store (settings.playing);
}
} // namespace Zn::Sequencer::MidiPlayer
