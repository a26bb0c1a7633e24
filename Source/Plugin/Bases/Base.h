#pragma once

#include "Plugin/Bases/SharedBase.h"
#include "Presets/Reflection/Loader.h"
#include "Presets/Reflection/Saver.h"
#include "Presets/Undo/Manager.h"

#include <memory>

namespace Zn::Audio::Plugin
{
/** Owns the state, one object on the heap that lives as long as the processor, and its undo; lists its parameters to the
    host, and gives the host its document. The state is a Presets::Base.
*/
template <typename StateType>
class Base : public SharedBase
{
public:
    explicit Base (Role role = Role::instrument) : SharedBase (role), state (std::make_unique<StateType>())
    {
        state->params.forwardTo (hostParameters);
        hostParameters.addTo (*this);
    }

    ~Base() override { stopHostState(); }

    StateType& getState() noexcept { return *state; }

    /** Begins anew with each state from the project, and outlives every editor. Thread: message. */
    Undo::Manager& getUndo() noexcept { return undo; }

protected:
    void hostStateAboutToLoad() override { undo.awaitRestart(); }
    void hostStateLoaded() override { undo.restart(); }

    nlohmann::json createDocument() override { return Json::save (*state, ReflectorContext::forHostChunk()); }

    void applyDocument (nlohmann::json document) override
    {
        Json::load (*state, document, ReflectorContext::forHostChunk());
    }

    const std::unique_ptr<StateType> state;

private:
    Undo::Manager undo { *state };
};
} // namespace Zn::Audio::Plugin
