#pragma once

#include "Presets/Undo/Interface.h"
#include "Presets/Undo/Snapshot.h"

#include <cstdint>
#include <vector>

namespace Zn::Presets
{
class Base;
}

namespace Zn::Undo
{
/** Undo by whole snapshots: after each edit the complete state is kept, and undoing loads an older one the way a preset
    is loaded. Nobody writes code to undo what they do; they only say that they did something.

    The first snapshot is the floor that undo cannot leave. Thread: message.
*/
class Manager : public Interface
{
public:
    /** The state as it is when the first edit begins is the floor. It must outlive the manager. */
    explicit Manager (Presets::Base& stateToKeep) noexcept : state (stateToKeep) {}

    Manager (const Manager&) = delete;
    Manager& operator= (const Manager&) = delete;

    /** Nothing is an edit from now on until restart(), for a host that loads another project. */
    void awaitRestart() noexcept { ignoresEdits = true; }

    /** Forgets everything: the state as it is when the next edit begins is the floor. */
    void restart();

    void begin() override;
    void markChanged() override;

    /** The end of the outermost edit keeps the state under this name, if anything was changed, and drops what could
        have been redone.
    */
    void end (const juce::String& name) override;

    /** The state got another name and is saved, which is no edit: undoing the next one leads back to it as it is now. */
    void keepSaved();

    void undo() override;
    void redo() override;

    std::unique_ptr<Parameters::Parameter> createUndoParam() override;
    std::unique_ptr<Parameters::Parameter> createRedoParam() override;

    bool canUndo() const override;
    bool canRedo() const override;

    /** Of the edit that the state is at, "Initial" before the first. */
    juce::String getCurrentName() const;

    /** Of the edit that redo brings back; empty if there is none. */
    juce::String getNextName() const;

    /** What all snapshots take. */
    std::size_t getNumBytes() const noexcept;

private:
    void keepFloor();
    void keep (const juce::String& name);
    void goTo (std::int32_t newIndex);
    void apply (const Snapshot& snapshot);

    std::int32_t index = 0; // of the current snapshot
    std::int32_t depth = 0; // open edits
    bool changed = false;
    bool ignoresEdits = false; // while something is loaded
    std::vector<Snapshot>
        snapshots; // the floor is kept when it is needed: most projects are loaded to be played
    Presets::Base& state;
};
} // namespace Zn::Undo
