#pragma once

#include "GUI/Widgets/EditorContext.h"
#include "Parameters/BoolRef.h"

#include <functional>
#include <memory>

namespace Zn::GUI
{
/** All that can be done with the MIDI player, for whichever button, menu or drop it is asked by. Each is one step of
    undo. Thread: message.
*/
class PlayerActions
{
public:
    explicit PlayerActions (EditorContext& contextToUse);

    /** By its place in the choices of State::midiFile. */
    void choose (int index);

    /** The next file (+1), the one before (-1). */
    void step (int direction);

    /** Asks for a file. */
    void open();

    /** A file that is dropped: chooses it and turns the player on. */
    void play (const juce::File& file);

    Parameters::MenuItems::Item createMenu();

    EditorContext& getContext() const noexcept { return context; }

private:
    void edit (const std::function<void()>& change);
    bool changes (const std::function<void()>& change);

    EditorContext& context;
    std::unique_ptr<juce::FileChooser> chooser; // closes with the editor
    Events::Listener openListener;
};

/** Whether the chosen file is one on disk that is not there. */
bool isFileMissing (const Audio::Plugins::Vornel::State& state);

/** A switch of the player, for a toggle. Thread: message. */
class PlayerSwitch : public Parameters::BoolRef
{
public:
    using Getter = std::function<bool()>;
    using Setter = std::function<void (bool)>;

    PlayerSwitch (const juce::String& nameToUse, bool isOnByDefault, Getter getterToUse, Setter setterToUse);

    float getNormalised() const override { return getter() ? 1.0f : 0.0f; }
    void setBool (bool newValue) override;

private:
    bool unused = false; // the state keeps the value
    const Getter getter;
    const Setter setter;
};

std::shared_ptr<PlayerSwitch> createPlayerActive (Audio::Plugins::Vornel::State& state);
std::shared_ptr<PlayerSwitch> createPlayerSync (Audio::Plugins::Vornel::State& state);
} // namespace Zn::GUI
