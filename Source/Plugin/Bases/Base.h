#pragma once

#include "Plugin/Bases/SharedBase.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"
#include "Presets/Undo/Manager.h"

#include <memory>
#include <optional>

namespace Zn::Audio::Plugin
{
/** Owns the state, one object on the heap that lives as long as the processor, and its undo; lists its parameters to the
    host, and gives the host its document. The state is a Presets::Base.
*/
template <typename StateType>
class Base : public SharedBase
{
public:
    Base() : state (std::make_unique<StateType>())
    {
        state->params.forwardTo (hostParameters);
        hostParameters.addTo (*this);
    }

    ~Base() override { stopHostState(); }

    StateType& getState() noexcept { return *state; }

    /** Made when it is first asked for, as that keeps the state for the first time; begins anew with each state from the
        project, and outlives every editor. Thread: message.
    */
    Undo::Manager& getUndo()
    {
        if (! undo.has_value())
            undo.emplace (*state);
        else if (undoIsBehind)
            undo->restart();

        undoIsBehind = false;
        return *undo;
    }

protected:
    void hostStateAboutToLoad() override
    {
        undoIsBehind = undo.has_value();

        if (undoIsBehind)
            undo->awaitRestart();
    }

    void followUpLoad() override
    {
        if (undoIsBehind)
            getUndo();
    }

    nlohmann::json createDocument() override { return Json::save (*state, ReflectorContext::forHostChunk()); }

    void applyDocument (nlohmann::json document) override
    {
        Json::load (*state, document, ReflectorContext::forHostChunk());
    }

    const std::unique_ptr<StateType> state;

private:
    std::optional<Undo::Manager> undo;
    bool undoIsBehind = false; // of a state that came from the project
};
} // namespace Zn::Audio::Plugin
