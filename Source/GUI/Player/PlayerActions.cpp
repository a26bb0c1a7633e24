#include "GUI/Player/PlayerActions.h"

#include "Sequencer/MidiPlayer/ReadResource.h"

#include <optional>
#include <utility>

namespace Zn::GUI
{
namespace
{
using Audio::Plugins::Vornel::State;

constexpr auto editName = "MIDI file";

/** The chosen file, if it is one on disk. */
std::optional<juce::File> fileOf (const State& state)
{
    const auto& resource = state.player.get().resource;
    const auto path = juce::String::fromUTF8 (resource.data.c_str());

    if (resource.type == Sequencer::MidiPlayer::Resource::Type::externalFile
        && juce::File::isAbsolutePath (path))
        return juce::File (path);

    return {};
}

juce::File folderToOpen (const State& state)
{
    if (const auto file = fileOf (state); file && file->getParentDirectory().isDirectory())
        return file->getParentDirectory();

    return juce::File::getSpecialLocation (juce::File::userDocumentsDirectory);
}
} // namespace

PlayerActions::PlayerActions (EditorContext& contextToUse)
    : context (contextToUse), openListener (contextToUse.state().midiFile.openWanted, [this] { open(); })
{}

void PlayerActions::choose (int index)
{
    edit ([this, index] { context.state().midiFile.setInt (index); });
}

void PlayerActions::step (int direction)
{
    context.edits.join (this, editName, [this, direction] {
        return changes ([&] { context.state().midiFile.step (direction); });
    });
}

void PlayerActions::open()
{
    constexpr auto flags = juce::FileBrowserComponent::openMode | juce::FileBrowserComponent::canSelectFiles;

    chooser = std::make_unique<juce::FileChooser> ("Open a MIDI file",
                                                   folderToOpen (context.state()),
                                                   "*.mid;*.midi");
    chooser->launchAsync (flags, [this] (const juce::FileChooser& closed) {
        if (const auto file = closed.getResult(); file != juce::File())
            edit ([&] { context.state().player.choose (Sequencer::MidiPlayer::resourceOf (file)); });
    });
}

void PlayerActions::play (const juce::File& file)
{
    edit ([&] {
        auto& state = context.state();
        state.player.choose (Sequencer::MidiPlayer::resourceOf (file));

        if (state.player.getSong() != nullptr && ! state.player.get().active)
            state.setPlayerActive (true);
    });
}

/** None, the program's own files, the one from elsewhere while it is chosen, and the way to others. */
Parameters::MenuItems::Item PlayerActions::createMenu()
{
    const auto choices = context.state().midiFile.getChoices();
    const auto openIndex = choices.indexOf ("Open...");
    Parameters::MenuItems::Item menu { .text = editName };

    const auto add = [&] (int index, const juce::String& text) {
        menu.subItems.push_back (
            { .text = text,
              .isSelected = [this, index] { return context.state().midiFile.getInt() == index; },
              .action = [this, index] { choose (index); } });
    };

    add (0, choices[0]);
    menu.subItems.push_back ({});

    for (auto index = 1; index < openIndex; ++index)
        add (index, choices[index]);

    menu.subItems.push_back ({});

    for (auto index = openIndex + 1; index < choices.size(); ++index)
        add (index, choices[index]);

    add (openIndex, "Open" + juce::String::charToString (0x2026));
    return menu;
}

void PlayerActions::edit (const std::function<void()>& change)
{
    context.edits.perform (editName, [&] { return changes (change); });
}

bool PlayerActions::changes (const std::function<void()>& change)
{
    auto& state = context.state();
    const auto before = state.player.get();
    change();

    if (state.player.get() == before)
        return false;

    state.projectChanged.callListeners();
    return true;
}

bool isFileMissing (const State& state)
{
    const auto file = fileOf (state);
    return file && ! file->existsAsFile();
}

PlayerSwitch::PlayerSwitch (const juce::String& nameToUse,
                            bool isOnByDefault,
                            Getter getterToUse,
                            Setter setterToUse)
    : BoolRef (unused, nameToUse, isOnByDefault)
    , getter (std::move (getterToUse))
    , setter (std::move (setterToUse))
{}

void PlayerSwitch::setBool (bool newValue)
{
    if (newValue != getter())
        setter (newValue);
}

std::shared_ptr<PlayerSwitch> createPlayerActive (State& state)
{
    return std::make_shared<PlayerSwitch> (
        "MIDI player",
        false,
        [&state] { return state.player.get().active; },
        [&state] (bool isActive) {
            state.setPlayerActive (isActive);
            state.projectChanged.callListeners();
        });
}

std::shared_ptr<PlayerSwitch> createPlayerSync (State& state)
{
    return std::make_shared<PlayerSwitch> (
        "Sync",
        true,
        [&state] { return state.player.get().playing; },
        [&state] (bool isInStep) {
            state.player.setPlaying (isInStep);
            state.projectChanged.callListeners();
        });
}
} // namespace Zn::GUI
